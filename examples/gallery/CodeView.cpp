#include "CodeView.h"

#include <QEvent>
#include <QRegularExpression>
#include <QSyntaxHighlighter>

#include <array>

namespace Gallery {

/// Keywords, names of the library's and Qt's classes, texts and comments.
class CodeView::Highlighter : public QSyntaxHighlighter
{
public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

    void setDark(bool dark)
    {
        m_dark = dark;
        rehighlight();
    }

protected:
    void highlightBlock(const QString& line) override
    {
        struct Rule
        {
            QRegularExpression pattern;
            QRgb onLight;
            QRgb onDark;
        };
        // Later rules win: a keyword within a comment is a comment.
        static const std::array<Rule, 4> rules = {{
            {QRegularExpression(QStringLiteral("\\bQ?[A-Z]\\w*[a-z]\\w*\\b")), 0x1b61b8, 0x7db3f2},
            {QRegularExpression(QStringLiteral(
                 "\\b(auto|bool|const|constexpr|else|false|for|if|int|new|nullptr|override|return|static|this|true|"
                 "using|void)\\b")),
             0x8a2f8f, 0xd79be0},
            {QRegularExpression(QStringLiteral(R"("(?:[^"\\]|\\.)*")")), 0x2d7a3a, 0x9bd18b},
            {QRegularExpression(QStringLiteral("//.*$")), 0x6a7079, 0x9aa0a8},
        }};
        for (const Rule& rule : rules) {
            auto matches = rule.pattern.globalMatch(line);
            while (matches.hasNext()) {
                const auto match = matches.next();
                setFormat(match.capturedStart(), match.capturedLength(), QColor(m_dark ? rule.onDark : rule.onLight));
            }
        }
    }

private:
    bool m_dark = false;
};

CodeView::CodeView(QWidget* parent)
    : QPlainTextEdit(parent)
    , m_highlighter(new Highlighter(document()))
{
    setReadOnly(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont fixed(QStringLiteral("monospace"), font().pointSize());
    fixed.setStyleHint(QFont::Monospace);
    setFont(fixed);
    // Code is no prose: from left to right in every language.
    setLayoutDirection(Qt::LeftToRight);
}

// As low as the log beside it: the stage gets the room.
QSize CodeView::sizeHint() const
{
    constexpr int lines = 6;
    return {QPlainTextEdit::sizeHint().width(), fontMetrics().lineSpacing() * lines};
}

void CodeView::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        m_highlighter->setDark(palette().color(QPalette::Base).lightness() <
                               palette().color(QPalette::Text).lightness());
}

} // namespace Gallery
