#include <KQt/Ui/SelectionFrameWidget/IFrameRenderSource.h>

#include <QRectF>
#include <QtTest>

#include <memory>

using Kestrel::Gui::IFrameRenderSource;

namespace {

class Source : public IFrameRenderSource
{
public:
    Source() = default;
    Source(const Source& other) = default;
    Source& operator=(const Source& other) = default;
    ~Source() override
    {
        if (destroyed)
            ++*destroyed;
    }

    QRectF GetFrameInScene() const override { return frame; }
    int GetTransparency() const override { return transparency; }
    bool IsBackgroundAlphaChannelNeeded() const override { return alphaNeeded; }
    bool IsInfoCaptionInsideFrame() const override { return captionInside; }
    bool IsInfoCaptionVisible() const override { return captionVisible; }

    QRectF frame;
    int transparency = 0;
    bool alphaNeeded = false;
    bool captionInside = false;
    bool captionVisible = false;
    int* destroyed = nullptr;
};

} // namespace

/// What is rendered of a source is tested with the widget that renders; this is what the interface's implementers rely
/// on.
class tst_IFrameRenderSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersThroughTheInterface();
    void isDeletedThroughTheInterface();
    void implementersCanBeCopied();
};

void tst_IFrameRenderSource::answersThroughTheInterface()
{
    Source source;
    source.frame = QRectF(1, 2, 3, 4);
    source.transparency = 128;
    const IFrameRenderSource& asked = source;
    QCOMPARE(asked.GetFrameInScene(), QRectF(1, 2, 3, 4));
    QCOMPARE(asked.GetTransparency(), 128);
    QVERIFY(!asked.IsBackgroundAlphaChannelNeeded());
    source.alphaNeeded = true;
    QVERIFY(asked.IsBackgroundAlphaChannelNeeded());
    QVERIFY(!asked.IsInfoCaptionInsideFrame());
    source.captionInside = true;
    QVERIFY(asked.IsInfoCaptionInsideFrame());
    QVERIFY(!asked.IsInfoCaptionVisible());
    source.captionVisible = true;
    QVERIFY(asked.IsInfoCaptionVisible());
}

void tst_IFrameRenderSource::isDeletedThroughTheInterface()
{
    int destroyed = 0;
    auto source = std::make_unique<Source>();
    source->destroyed = &destroyed;
    std::unique_ptr<IFrameRenderSource> owner = std::move(source);
    owner.reset();
    QCOMPARE(destroyed, 1);
}

void tst_IFrameRenderSource::implementersCanBeCopied()
{
    Source first;
    first.transparency = 7;
    const Source copy(first);
    QCOMPARE(copy.GetTransparency(), 7);
    Source assigned;
    assigned = first;
    QCOMPARE(assigned.GetTransparency(), 7);
}

QTEST_APPLESS_MAIN(tst_IFrameRenderSource)
#include "tst_IFrameRenderSource.moc"
