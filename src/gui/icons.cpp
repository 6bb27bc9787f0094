#include "gui/icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <cctype>
#include <functional>
#include <map>

#include "store/edition.h"

namespace qb::gui {
namespace {

// One palette for the whole set: dark outlines, a few clear fills.
const QColor kInk(0x37, 0x47, 0x4f);
const QColor kBlue(0x42, 0x7e, 0xc8);
const QColor kGreen(0x3c, 0x9a, 0x4a);
const QColor kRed(0xd0, 0x3b, 0x34);
const QColor kYellow(0xf2, 0xc0, 0x3c);
const QColor kOrange(0xe0, 0x82, 0x2c);
const QColor kPaper(0xfa, 0xfa, 0xf5);
const QColor kGrey(0x90, 0xa4, 0xae);

using Drawing = std::function<void(QPainter&)>;

// Every image is drawn on a 32 by 32 grid and scaled by the icon engine.
QIcon Draw(const Drawing& drawing) {
    QIcon icon;
    for (int size : {16, 24, 32, 48}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / 32.0, size / 32.0);
        drawing(painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

QPen Pen(const QColor& color, double width = 2.0) {
    return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void Page(QPainter& p) {
    QPainterPath sheet;
    sheet.moveTo(7, 3);
    sheet.lineTo(20, 3);
    sheet.lineTo(26, 9);
    sheet.lineTo(26, 29);
    sheet.lineTo(7, 29);
    sheet.closeSubpath();
    p.setPen(Pen(kInk));
    p.setBrush(kPaper);
    p.drawPath(sheet);
    p.drawLine(QPointF(20, 3), QPointF(20, 9));
    p.drawLine(QPointF(20, 9), QPointF(26, 9));
}

void Lines(QPainter& p, double left, double right, std::initializer_list<double> ys) {
    p.setPen(Pen(kGrey, 1.6));
    for (double y : ys)
        p.drawLine(QPointF(left, y), QPointF(right, y));
}

void Floppy(QPainter& p) {
    p.setPen(Pen(kInk));
    p.setBrush(kBlue);
    p.drawRoundedRect(QRectF(4, 4, 24, 24), 2, 2);
    p.setBrush(kPaper);
    p.drawRect(QRectF(9, 4, 14, 9));
    p.setBrush(kInk);
    p.drawRect(QRectF(18, 6, 3, 5));
    p.setBrush(kPaper);
    p.drawRect(QRectF(8, 17, 16, 11));
}

void UndoArrow(QPainter& p, const QColor& color) {
    p.setPen(Pen(color, 3.2));
    p.setBrush(Qt::NoBrush);
    QPainterPath path;
    path.moveTo(9, 13);
    path.lineTo(20, 13);
    path.cubicTo(30, 13, 30, 27, 20, 27);
    path.lineTo(12, 27);
    p.drawPath(path);
    p.setBrush(color);
    p.setPen(Pen(color, 1.5));
    QPolygonF head({QPointF(3, 13), QPointF(11, 6), QPointF(11, 20)});
    p.drawPolygon(head);
}

void CircleArrows(QPainter& p) {
    p.setPen(Pen(kGreen, 3.2));
    p.setBrush(Qt::NoBrush);
    const QRectF ring(6, 6, 20, 20);
    p.drawArc(ring, 30 * 16, 150 * 16);
    p.drawArc(ring, 210 * 16, 150 * 16);
    p.setBrush(kGreen);
    p.setPen(Pen(kGreen, 1.2));
    p.drawPolygon(QPolygonF({QPointF(27, 4), QPointF(28, 14), QPointF(19, 11)}));
    p.drawPolygon(QPolygonF({QPointF(5, 28), QPointF(4, 18), QPointF(13, 21)}));
}

void Plus(QPainter& p, const QColor& color, QPointF at, double half) {
    p.setPen(Pen(color, 3.5));
    p.drawLine(at + QPointF(-half, 0), at + QPointF(half, 0));
    p.drawLine(at + QPointF(0, -half), at + QPointF(0, half));
}

void Cross(QPainter& p, const QColor& color, QPointF at, double half) {
    p.setPen(Pen(color, 4));
    p.drawLine(at + QPointF(-half, -half), at + QPointF(half, half));
    p.drawLine(at + QPointF(-half, half), at + QPointF(half, -half));
}

void Pencil(QPainter& p, QPointF tip, double length) {
    p.save();
    p.translate(tip);
    p.rotate(-45);
    p.setPen(Pen(kInk, 1.6));
    p.setBrush(kYellow);
    p.drawRect(QRectF(5, -3, length - 9, 6));
    p.setBrush(kRed);
    p.drawRect(QRectF(length - 4, -3, 4, 6));
    p.setBrush(kPaper);
    p.drawPolygon(QPolygonF({QPointF(0, 0), QPointF(5, -3), QPointF(5, 3)}));
    p.restore();
}

void Check(QPainter& p, const QColor& color) {
    p.setPen(Pen(color, 3.5));
    p.drawPolyline(QPolygonF({QPointF(5, 22), QPointF(10, 27), QPointF(19, 17)}));
}

void Folder(QPainter& p) {
    p.setPen(Pen(kInk));
    p.setBrush(kOrange);
    QPainterPath back;
    back.moveTo(3, 8);
    back.lineTo(12, 8);
    back.lineTo(15, 11);
    back.lineTo(28, 11);
    back.lineTo(28, 27);
    back.lineTo(3, 27);
    back.closeSubpath();
    p.drawPath(back);
    p.setBrush(kYellow);
    p.drawPolygon(QPolygonF({QPointF(3, 27), QPointF(7, 15), QPointF(31, 15), QPointF(28, 27)}));
}

void Box(QPainter& p) {
    p.setPen(Pen(kInk));
    p.setBrush(kPaper);
    p.drawRoundedRect(QRectF(5, 5, 22, 22), 3, 3);
}

void TreeGlyph(QPainter& p) {
    p.setPen(Pen(kInk, 2));
    p.drawLine(QPointF(8, 10), QPointF(8, 25));
    p.drawLine(QPointF(8, 17), QPointF(15, 17));
    p.drawLine(QPointF(8, 25), QPointF(15, 25));
    p.setBrush(kBlue);
    p.drawRect(QRectF(4, 3, 9, 7));
    p.setBrush(kYellow);
    p.drawRect(QRectF(15, 14, 13, 6));
    p.drawRect(QRectF(15, 22, 13, 6));
}

void Gear(QPainter& p) {
    p.setPen(Pen(kInk, 1.6));
    p.setBrush(kGrey);
    QPainterPath gear;
    const QPointF c(16, 16);
    for (int i = 0; i < 8; ++i) {
        p.save();
        p.translate(c);
        p.rotate(i * 45);
        p.drawRect(QRectF(-3, -14, 6, 6));
        p.restore();
    }
    p.drawEllipse(c, 10, 10);
    p.setBrush(kPaper);
    p.drawEllipse(c, 4, 4);
}

void Bubble(QPainter& p) {
    p.setPen(Pen(kInk));
    p.setBrush(kBlue.lighter(150));
    QPainterPath path;
    path.addRoundedRect(QRectF(3, 4, 26, 18), 6, 6);
    QPainterPath tail;
    tail.moveTo(9, 20);
    tail.lineTo(7, 29);
    tail.lineTo(16, 21);
    p.drawPath(path.united(tail));
    p.setPen(Qt::NoPen);
    p.setBrush(kInk);
    for (double x : {10.0, 16.0, 22.0})
        p.drawEllipse(QPointF(x, 13), 2, 2);
}

void Person(QPainter& p) {
    p.setPen(Pen(kInk));
    p.setBrush(kGreen.lighter(130));
    QPainterPath body;
    body.moveTo(5, 29);
    body.cubicTo(5, 18, 27, 18, 27, 29);
    body.closeSubpath();
    p.drawPath(body);
    p.setBrush(kYellow.lighter(120));
    p.drawEllipse(QPointF(16, 11), 6.5, 6.5);
}

void Die(QPainter& p) {
    p.setPen(Pen(kInk));
    p.setBrush(kPaper);
    p.drawRoundedRect(QRectF(4, 4, 24, 24), 5, 5);
    p.setPen(Qt::NoPen);
    p.setBrush(kRed);
    for (QPointF dot :
         {QPointF(10, 10), QPointF(16, 16), QPointF(22, 22), QPointF(22, 10), QPointF(10, 22)})
        p.drawEllipse(dot, 2.4, 2.4);
}

void Shield(QPainter& p) {
    p.setPen(Pen(kInk));
    p.setBrush(kBlue);
    QPainterPath path;
    path.moveTo(16, 3);
    path.lineTo(27, 7);
    path.cubicTo(27, 19, 22, 25, 16, 29);
    path.cubicTo(10, 25, 5, 19, 5, 7);
    path.closeSubpath();
    p.drawPath(path);
    p.setPen(Pen(kPaper, 3));
    p.drawPolyline(QPolygonF({QPointF(11, 16), QPointF(15, 20), QPointF(22, 11)}));
}

void Bolt(QPainter& p) {
    p.setPen(Pen(kInk, 1.6));
    p.setBrush(kYellow);
    p.drawPolygon(QPolygonF({QPointF(19, 2), QPointF(7, 18), QPointF(15, 18), QPointF(12, 30),
                             QPointF(25, 12), QPointF(17, 12), QPointF(21, 2)}));
}

void Book(QPainter& p, const QColor& cover) {
    p.setPen(Pen(kInk));
    p.setBrush(cover);
    p.drawRoundedRect(QRectF(6, 3, 20, 26), 2, 2);
    p.setBrush(kPaper);
    p.drawRect(QRectF(9, 25, 17, 4));
    p.setPen(Pen(kPaper, 1.6));
    p.drawLine(QPointF(10, 3), QPointF(10, 24));
}

void Quill(QPainter& p) {
    Book(p, kRed.darker(110));
    p.setPen(Pen(kInk, 1.4));
    p.setBrush(kPaper);
    QPainterPath feather;
    feather.moveTo(13, 24);
    feather.cubicTo(14, 12, 22, 5, 30, 1);
    feather.cubicTo(28, 10, 22, 18, 13, 24);
    p.drawPath(feather);
}

// An arrow up or down the rows, with a bar where it goes all the way.
void MoveArrow(QPainter& p, bool up, bool toEnd) {
    const double tip = up ? 7 : 25;
    const double tail = up ? 27 : 5;
    const double head = up ? 6 : -6;
    p.setPen(Pen(kBlue, 3));
    p.drawLine(QPointF(16, tip), QPointF(16, tail));
    p.drawPolyline(QPolygonF({QPointF(9, tip + head), QPointF(16, tip), QPointF(23, tip + head)}));
    if (toEnd) {
        p.setPen(Pen(kInk, 3));
        p.drawLine(QPointF(8, up ? 3 : 29), QPointF(24, up ? 3 : 29));
    }
}

const std::map<std::string, Drawing>& Drawings() {
    static const std::map<std::string, Drawing> drawings = {
        {"SAVE", Floppy},
        {"DISCARD", [](QPainter& p) { UndoArrow(p, kOrange); }},
        {"RESTORE", CircleArrows},
        {"NEW",
         [](QPainter& p) {
             Page(p);
             Plus(p, kGreen, {21, 22}, 6);
         }},
        {"DELETE",
         [](QPainter& p) {
             Cross(p, kRed, {16, 16}, 9);
         }},
        {"EDIT",
         [](QPainter& p) {
             Pencil(p, {5, 27}, 30);
         }},
        {"EDITALL",
         [](QPainter& p) {
             Page(p);
             Lines(p, 10, 22, {13, 18, 23});
             Pencil(p, {12, 29}, 22);
         }},
        {"AMEND",
         [](QPainter& p) {
             Pencil(p, {11, 21}, 24);
             Check(p, kGreen);
         }},
        {"OPEN", Folder},
        // A list's rows moved in order.
        {"MoveTop", [](QPainter& p) { MoveArrow(p, true, true); }},
        {"MoveUp", [](QPainter& p) { MoveArrow(p, true, false); }},
        {"MoveDown", [](QPainter& p) { MoveArrow(p, false, false); }},
        {"MoveBottom", [](QPainter& p) { MoveArrow(p, false, true); }},
        // The permission pages' filters: by command, by profile.
        {"COMMAND",
         [](QPainter& p) {
             Page(p);
             Lines(p, 10, 22, {13, 18, 23});
         }},
        {"PROFILE", Person},
        {"Treeview", TreeGlyph},
        {"EXPAND",
         [](QPainter& p) {
             Box(p);
             Plus(p, kInk, {16, 16}, 6);
         }},
        {"General", Gear},
        {"Communication", Bubble},
        {"CustomiseUser", Person},
        {"Games", Die},
        {"Security", Shield},
        {"UserActions", Bolt},
        {"Bookshelf", [](QPainter& p) { Book(p, kBlue); }},
        {"DVDRack", [](QPainter& p) { Book(p, kInk); }},
        {"Jukebox", [](QPainter& p) { Book(p, kOrange); }},
        {"Songbook", [](QPainter& p) { Book(p, kGreen); }},
        {"Arcade", [](QPainter& p) { Book(p, kRed); }},
        {"Hyperlink", [](QPainter& p) { Book(p, kGrey); }},
        {"QUILLBOOK", Quill},
    };
    return drawings;
}

// Keys whose image depends on the list it is in.
Drawing ListSpecific(const std::string& key, const std::string& list) {
    if (key != "CLOSE") return nullptr;
    if (list == "imlSidebar") {
        return [](QPainter& p) {
            Box(p);
            p.setPen(Pen(kInk, 3.5));
            p.drawLine(QPointF(10, 16), QPointF(22, 16));
        };
    }
    return [](QPainter& p) { UndoArrow(p, kRed); };
}

}  // namespace

QIcon IconFor(const std::string& imageKey, const std::string& imageList) {
    static std::map<std::string, QIcon> cache;
    const std::string id = imageList + "/" + imageKey;
    if (const auto found = cache.find(id); found != cache.end()) return found->second;
    Drawing drawing = ListSpecific(imageKey, imageList);
    if (!drawing) {
        const auto found = Drawings().find(imageKey);
        if (found != Drawings().end()) drawing = found->second;
    }
    QIcon icon = drawing ? Draw(drawing) : QIcon();
    cache.emplace(id, icon);
    return icon;
}

QIcon WindowIcon() {
    std::string name(store::kEdition);
    for (char& c : name)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return IconFor(name);
}

}  // namespace qb::gui
