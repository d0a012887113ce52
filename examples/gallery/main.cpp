#include "Page.h"
#include "PageRegistry.h"

#include <QApplication>
#include <QTabWidget>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QTabWidget window;
    for (const auto& page : Gallery::registeredPages())
        window.addTab(page.create(&window), QString::fromLatin1(page.title));
    window.show();
    return QApplication::exec();
}
