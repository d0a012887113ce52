#include <KQt/Ui/NoWheelComboBox.h>

#include <KQt/Ui/ElidedComboBoxPainting.h>

#include <QPaintEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

namespace Kestrel::Gui {

NoWheelComboBox::NoWheelComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

NoWheelComboBox::~NoWheelComboBox() = default;

void NoWheelComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void NoWheelComboBox::paintEvent(QPaintEvent* event)
{
    event->accept();
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QString shown = Detail::paintElided(painter, *this, option, Detail::editField(*this, option).width());
    Detail::updateToolTip(*this, currentText() == shown ? QString() : currentText());
}

} // namespace Kestrel::Gui
