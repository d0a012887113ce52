#pragma once

#include <QPlainTextEdit>

namespace Gallery {

/// Lines of C++ to read and to copy, in the colours of the palette.
class CodeView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit CodeView(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    class Highlighter;
    Highlighter* m_highlighter;
};

} // namespace Gallery
