#include <KQt/Ui/AdvancedSpinBox.h>
#include <KQt/Ui/ClickableLabel.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/TextEditWithPlaceholder.h>

#include <QApplication>
#include <QFormLayout>

using namespace Kestrel::Gui;

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);

    QWidget window;
    auto* layout = new QFormLayout(&window);

    auto* path = new ExtendedLabel;
    path->SetElideMode(Qt::ElideMiddle);
    path->SetOriginalText(QStringLiteral("/home/somebody/Pictures/Holidays/At the sea/The longest name of all.png"));
    path->setMinimumWidth(160);
    layout->addRow(QStringLiteral("File:"), path);

    auto* title = new ClippingTextLineEdit;
    title->SetOriginalText(QStringLiteral("A title that is longer than the field, and shown whole while it is edited"));
    layout->addRow(QStringLiteral("Title:"), title);

    auto* year = new AdvancedSpinBox;
    year->setRange(0, 9999);
    year->setMaxLenght(4);
    layout->addRow(QStringLiteral("Year:"), year);

    auto* remarks = new TextEditWithPlaceholder;
    remarks->setPlaceholderText(QStringLiteral("What should others know?"));
    layout->addRow(QStringLiteral("Remarks:"), remarks);

    auto* forget = new ClickableLabel;
    forget->setText(QStringLiteral("Forget everything"));
    forget->setStyleSheet(QStringLiteral("QLabel[clickable=\"true\"] { color: #2060c0; text-decoration: underline; }"));
    layout->addRow(forget);

    QObject::connect(title, &ClippingTextLineEdit::OriginalTextChanged, path, &ExtendedLabel::SetOriginalText);
    QObject::connect(forget, &ClickableLabel::clicked, remarks, &QPlainTextEdit::clear);

    window.show();
    return QApplication::exec();
}
