#pragma once

#include <KQt/Ui/WalkthroughHint.h>

#include <QPointer>
#include <QStringList>
#include <QVector>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace Gallery {

/// What one hint says, and when and where. The two texts are source texts of the hint's translation context.
struct HintDescription
{
    QString name;
    QString target;
    QString alignment;
    QStringList conditions;
    const char* title;
    const char* text;
};

/// A hint as an application would write it: a title, a text and three buttons, in the colours of the palette.
///
/// All of it works from the keyboard: "Next" has the focus when the hint appears, Tab goes on to the others, and Escape
/// is "Not now". The focus returns where it was when the hint goes.
class GalleryHint : public Kestrel::Gui::WalkthroughHint
{
    Q_OBJECT

public:
    /// @param context translation context of the descriptions' texts; a string literal
    GalleryHint(const char* context, const QVector<HintDescription>& descriptions);
    ~GalleryHint() override;

    QSize sizeHint() const override;

    WalkthroughHint* clone() const override;
    QStackedWidget* stackedWidget() const override;
    QLabel* textLabel() const override;
    QAbstractButton* closeButton() const override;
    QAbstractButton* disableForSessionButton() const override;
    QAbstractButton* disableForeverButton() const override;

    /// Gives the frame around the targets its look.
    void start(QSet<QWidget*> targets) override;

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void limitTextSize(QSize size) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void addPage(const HintDescription& description);
    QPushButton* addButton(const char* name);
    void setTexts();

    const char* m_context;
    QVector<HintDescription> m_descriptions;
    QStackedWidget* m_pages;
    QPushButton* m_next;
    QPushButton* m_notNow;
    QPushButton* m_neverAgain;
    QPointer<QWidget> m_focusedBefore;
};

} // namespace Gallery
