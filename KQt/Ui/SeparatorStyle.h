#pragma once

#include <KQt/Ui/Export.h>

#include <QColor>
#include <QWidget>

namespace Kestrel::Gui {

/// The look of the separators of a SeparatorDelegate: an invisible widget, so that a style sheet can set its properties
/// (`Kestrel--Gui--SeparatorStyle { qproperty-height: 9; }`). All lengths are in pixels. A change shows when the view
/// lays out or paints its items the next time.
class KQTUI_EXPORT SeparatorStyle : public QWidget
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(int lineWidth READ lineWidth WRITE setLineWidth)
    Q_PROPERTY(QColor color READ color WRITE setColor)
    Q_PROPERTY(int height READ height WRITE setHeight)
    Q_PROPERTY(int marginLeft READ marginLeft WRITE setMarginLeft)
    Q_PROPERTY(int marginRight READ marginRight WRITE setMarginRight)
    Q_PROPERTY(int verticalPosition READ verticalPosition WRITE setVerticalPosition)

public:
    explicit SeparatorStyle(QWidget* parent = nullptr);
    ~SeparatorStyle() override;

    int lineWidth() const;
    void setLineWidth(int width);

    QColor color() const;
    void setColor(QColor color);

    /// The height of a separator's row and not the widget's own; below 1 it is as tall as an ordinary row.
    int height() const;
    void setHeight(int height);

    /// The gap between the row's edge and the line.
    int marginLeft() const;
    void setMarginLeft(int margin);
    int marginRight() const;
    void setMarginRight(int margin);

    /// How far below the row's middle the line lies; negative above it.
    int verticalPosition() const;
    void setVerticalPosition(int position);

private:
    int m_lineWidth = 1;
    int m_height = 2;
    QColor m_color = QColor(128, 128, 128);
    int m_marginLeft = 0;
    int m_marginRight = 0;
    int m_verticalPosition = 0;
};

} // namespace Kestrel::Gui
