#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/SeparatorDelegate.h>

#include <QApplication>
#include <QListView>
#include <QPainter>
#include <QStandardItemModel>

#include <benchmark/benchmark.h>

namespace {

using Kestrel::Gui::AdvancedComboBox;
using Kestrel::Gui::SeparatorDelegate;

constexpr int itemCount = 10000;

void fill(QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < itemCount; ++i)
        texts << QStringLiteral("Item number %1 of a long list").arg(i);
    box.addItems(texts);
    box.resize(80, box.sizeHint().height());
    box.show();
    QCoreApplication::processEvents();
}

void openAndClose(QComboBox& box)
{
    box.showPopup();
    QCoreApplication::processEvents();
    box.hidePopup();
    QCoreApplication::processEvents();
}

/// A plain box whose list is as a list comes: with the delegate that AdvancedComboBox's list has, too.
class ListBox : public QComboBox
{
public:
    ListBox() { setView(new QListView); }
};

template <typename Box>
void BM_firstOpening(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto box = std::make_unique<Box>();
        fill(*box);
        state.ResumeTiming();
        openAndClose(*box);
        state.PauseTiming();
        box.reset();
        state.ResumeTiming();
    }
}

template <typename Box>
void BM_nextOpening(benchmark::State& state)
{
    Box box;
    fill(box);
    openAndClose(box);
    for (auto _ : state)
        openAndClose(box);
}

/// What the first opening of a wide popup may cost on top: every item asked once for its width.
void BM_measureAllItems(benchmark::State& state)
{
    struct List : QListView
    {
        using QListView::sizeHintForColumn;
    };
    QComboBox box;
    fill(box);
    List list;
    list.setModel(box.model());
    for (auto _ : state)
        benchmark::DoNotOptimize(list.sizeHintForColumn(0));
}

void paintRow(benchmark::State& state, int row)
{
    QWidget parent;
    const SeparatorDelegate delegate(&parent);
    QStandardItemModel model;
    model.appendRow(new QStandardItem(QStringLiteral("ordinary")));
    model.appendRow(SeparatorDelegate::createSeparatorItem().release());
    QImage image(200, 30, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.initFrom(&parent);
    option.rect = image.rect();
    const QModelIndex index = model.index(row, 0);
    for (auto _ : state)
        delegate.paint(&painter, option, index);
}

void BM_paintOrdinaryRow(benchmark::State& state)
{
    paintRow(state, 0);
}

void BM_paintSeparatorRow(benchmark::State& state)
{
    paintRow(state, 1);
}

BENCHMARK_TEMPLATE(BM_firstOpening, QComboBox)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_firstOpening, ListBox)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_measureAllItems)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_firstOpening, AdvancedComboBox)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_nextOpening, QComboBox)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_nextOpening, ListBox)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_nextOpening, AdvancedComboBox)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_paintOrdinaryRow);
BENCHMARK(BM_paintSeparatorRow);

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
