#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/WidgetRenderer.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Kestrel::Gui;

// What the lambdas capture lives as long as main(). clazy:excludeall=lambda-in-connect
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);

    QWidget window;
    auto* name = new QLineEdit;
    auto* save = new QPushButton(QStringLiteral("Save"));
    auto* marked = new QCheckBox(QStringLiteral("Mark both"));
    auto* compose = new QPushButton(QStringLiteral("Draw the number into a picture"));
    auto* holder = new QWidget;
    auto* covered = new QLabel(QStringLiteral(" 42 "), holder);
    covered->resize(covered->sizeHint());
    holder->setFixedSize(covered->size());
    auto* picture = new QLabel;
    auto* layout = new QVBoxLayout(&window);
    for (QWidget* widget : std::initializer_list<QWidget*>{name, save, marked, compose, holder, picture})
        layout->addWidget(widget);

    // One frame around two widgets; it follows them until it is deleted.
    QPointer<HighlightFrame> frame;
    QObject::connect(marked, &QCheckBox::toggled, &window, [&frame, name, save](bool on) {
        delete frame;
        if (!on)
            return;
        frame = new HighlightFrame(QSet<QWidget*>{name, save});
        frame->setFrameStyle(QFrame::Box | QFrame::Plain);
        frame->setLineWidth(2);
        frame->setStyleSheet(QStringLiteral("color: #c04000;"));
    });
    marked->setChecked(true);

    // A renderer watches the whole application, so this one lives only while it composes.
    QObject::connect(compose, &QPushButton::clicked, &window, [=] {
        const QPoint onScreen = covered->mapToGlobal(QPoint());
        WidgetRenderer renderer(holder, nullptr);
        renderer.ChangeRendererFrame(QRect(QPoint(), onScreen + covered->rect().bottomRight()));
        covered->hide();
        covered->show(); // shown inside the frame, it is taken over
        picture->setPixmap(renderer.GetMaskImage().copy(QRect(onScreen, covered->size())));
        // The renderer leaves its masks to whoever ends it.
        covered->clearMask();
        covered->setAttribute(Qt::WA_MouseNoMask, false);
    });

    window.show();
    return QApplication::exec();
}
