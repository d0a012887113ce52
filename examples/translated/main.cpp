#include <KQt/Ui/FontStylePicker.h>

#include <QApplication>
#include <QLocale>
#include <QToolButton>
#include <QTranslator>

#include <cstdio>

// Shows buttons whose tool tips speak the user's language; with --probe it only writes the tool tips.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);

    const QString folder = QStringLiteral(TRANSLATIONS);
    //! [load]
    QTranslator translator;
    if (translator.load(QLocale(), QStringLiteral("kqtui"), QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(&translator);
    //! [load]

    Kestrel::Gui::FontStylePicker picker(nullptr);
    if (QApplication::arguments().contains(QStringLiteral("--probe"))) {
        const auto buttons = picker.findChildren<QToolButton*>();
        for (const QToolButton* button : buttons)
            std::puts(qUtf8Printable(button->toolTip()));
        return 0;
    }
    picker.show();
    return QApplication::exec();
}
