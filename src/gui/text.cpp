#include "gui/text.h"

#include "store/cp1252.h"

namespace qb::gui {

QString ToQt(const std::string& cp1252) {
    QString text;
    text.reserve(static_cast<qsizetype>(cp1252.size()));
    for (char c : cp1252) {
        text.append(
            QChar(static_cast<char16_t>(store::Cp1252ToCodePoint(static_cast<unsigned char>(c)))));
    }
    return text;
}

std::string FromQt(const QString& text) {
    std::string bytes;
    bytes.reserve(static_cast<size_t>(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) ++i;
        const int byte = c.isSurrogate() ? -1 : store::CodePointToCp1252(c.unicode());
        bytes.push_back(byte < 0 ? '?' : static_cast<char>(byte));
    }
    return bytes;
}

QString ToQtLines(const std::string& cp1252) {
    QString text = ToQt(cp1252);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text;
}

std::string FromQtLines(const QString& text) {
    QString lines = text;
    lines.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    return FromQt(lines);
}

QString ToQtLiteral(const std::string& cp1252) {
    return ToQt(cp1252).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace qb::gui
