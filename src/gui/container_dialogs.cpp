#include "gui/container_dialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "gui/fatal.h"
#include "gui/icons.h"
#include "gui/text.h"
#include "shell/about.h"

namespace qb::gui {

// ---- Windows ---------------------------------------------------------------------------------

WindowsDialog::WindowsDialog(shell::Container& container, QWidget* parent)
    : QDialog(parent), container_(container), lvwWindows_(new QTreeWidget) {
    setObjectName(QStringLiteral("frmContainerWindows"));
    setWindowTitle(QStringLiteral("Windows"));
    lvwWindows_->setObjectName(QStringLiteral("lvwWindows"));
    lvwWindows_->setColumnCount(1);
    lvwWindows_->setHeaderHidden(true);
    lvwWindows_->setRootIsDecorated(false);
    for (const auto& entry : container_.OpenWindows()) {
        auto* row = new QTreeWidgetItem(lvwWindows_, {ToQt(entry.WindowName())});
        row->setData(0, Qt::UserRole, ToQt(entry.WindowTag()));
    }
    if (lvwWindows_->topLevelItemCount() > 0) {
        lvwWindows_->setCurrentItem(lvwWindows_->topLevelItem(0));
    }
    connect(lvwWindows_, &QTreeWidget::itemDoubleClicked, this, [this] { Choose(); });

    auto* cmdOK = new QPushButton(QStringLiteral("OK"));
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    auto* cmdCancel = new QPushButton(QStringLiteral("Cancel"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cmdOK, &QPushButton::clicked, this, [this] { Choose(); });
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lvwWindows_);
    layout->addLayout(buttons);
    resize(360, 300);
}

void WindowsDialog::Choose() {
    QTreeWidgetItem* row = lvwWindows_->currentItem();
    hide();
    if (row != nullptr) {
        const std::string tag = FromQt(row->data(0, Qt::UserRole).toString());
        Guard([&] { container_.OpenFunctionPage(tag); });
    }
    accept();
}

// ---- About -----------------------------------------------------------------------------------

AboutDialog::AboutDialog(store::ProgramVersion version, QWidget* parent) : QDialog(parent) {
    const shell::AboutText about = shell::AboutBox(version);
    setObjectName(QStringLiteral("frmHelpAbout"));
    setWindowTitle(ToQt(about.caption));

    auto* picIcon = new QLabel;
    picIcon->setObjectName(QStringLiteral("picIcon"));
    picIcon->setPixmap(WindowIcon().pixmap(48, 48));
    picIcon->setAlignment(Qt::AlignTop);

    auto label = [](const char* name, const std::string& text) {
        auto* l = new QLabel(ToQt(text));
        l->setObjectName(QLatin1String(name));
        l->setWordWrap(true);
        return l;
    };
    auto* lblTitle = label("lblTitle", about.title);
    QFont big = lblTitle->font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    big.setBold(true);
    lblTitle->setFont(big);
    auto* lblDisclaimer = label("lblDisclaimer", about.disclaimer);
    lblDisclaimer->setFrameShape(QFrame::StyledPanel);

    auto* texts = new QVBoxLayout;
    texts->addWidget(lblTitle);
    texts->addWidget(label("lblVersion", about.version));
    texts->addWidget(label("lblDescription", about.description));
    texts->addStretch(1);
    auto* top = new QHBoxLayout;
    top->addWidget(picIcon);
    top->addLayout(texts, 1);

    auto* cmdOK = new QPushButton(QStringLiteral("OK"));
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    auto* cmdSysInfo = new QPushButton(QStringLiteral("&System Info..."));
    cmdSysInfo->setObjectName(QStringLiteral("cmdSysInfo"));
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdSysInfo, &QPushButton::clicked, this, [this] { ShowSystemInformation(this); });
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdSysInfo);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(lblDisclaimer, 1);
    bottom->addLayout(buttons);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addLayout(bottom);
    setFixedWidth(460);
}

QString SystemInformation() {
    return SystemInformation(QStringLiteral(QB_SYSINFO_COMMAND), QStringLiteral(QB_SYSINFO_FILE));
}

QString SystemInformation(const QString& commandLine, const QString& fileName) {
    QString found;
    const QStringList command = QProcess::splitCommand(commandLine);
    if (!command.isEmpty()) {
        QProcess process;
        process.start(command.front(), command.mid(1));
        if (process.waitForFinished(5000) && process.exitStatus() == QProcess::NormalExit &&
            process.exitCode() == 0) {
            found += QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed() +
                     QStringLiteral("\n\n");
        }
    }
    QFile file(fileName);
    if (file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        found += QString::fromUtf8(file.readAll()).trimmed() + QStringLiteral("\n\n");
    }
    if (found.isEmpty()) return found;
    found += QStringLiteral("Qt %1\n").arg(QLatin1String(qVersion()));
    for (const QScreen* screen : QGuiApplication::screens()) {
        found += QStringLiteral("Screen %1: %2 x %3 pixels, %4 dpi\n")
                     .arg(screen->name())
                     .arg(screen->geometry().width())
                     .arg(screen->geometry().height())
                     .arg(qRound(screen->logicalDotsPerInch()));
    }
    return found;
}

void ShowSystemInformation(QWidget* parent) {
    const QString details = SystemInformation();
    if (details.isEmpty()) {
        QMessageBox::information(parent, QApplication::applicationDisplayName(),
                                 QLatin1String(shell::kNoSystemInformation));
        return;
    }
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("frmSystemInformation"));
    dialog.setWindowTitle(QStringLiteral("System Information"));
    auto* text = new QPlainTextEdit(details);
    text->setObjectName(QStringLiteral("txtSystemInformation"));
    text->setReadOnly(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    layout->addWidget(buttons);
    dialog.resize(640, 420);
    dialog.exec();
}

}  // namespace qb::gui
