#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QDialog;
class QPainter;
class QPixmap;
class QPoint;
class QRegion;
class QWidget;
QT_END_NAMESPACE

/// @file
/// What Qt's widgets do not put right themselves when the application's code, which they have called, throws: they are
/// compiled without exceptions, so that nothing of theirs is undone on the way to who catches.

namespace Kestrel::Gui::Detail {

/// To be called where an exception passes that may have come through QWidget::close(): @p widget would count as being
/// closed for ever, and never close again.
void forgetClosing(QWidget& widget);

/// QDialog::exec() for a dialog on the heap; deletes @p dialog, which would stay open, where an exception ends it.
int execDialog(QDialog* dialog);

/// QWidget::render() into @p picture, with the widget's mask ignored. Where a paint handler throws, the widget and its
/// children can be painted and rendered again.
void renderWidget(QWidget& widget, QPixmap& picture, const QPoint& offset, const QRegion& source);

} // namespace Kestrel::Gui::Detail
