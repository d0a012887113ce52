#include <KQt/Ui/ModelChanges.h>

#include <QStandardItemModel>
#include <QtTest>

#include <functional>
#include <memory>

using Kestrel::Gui::Detail::onModelChange;

namespace {

/// A model that can do what a standard model cannot.
class Model : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    void swapFirstRows()
    {
        beginMoveRows({}, 1, 1, {}, 0);
        endMoveRows();
    }
    void swapFirstColumns()
    {
        beginMoveColumns({}, 1, 1, {}, 0);
        endMoveColumns();
    }
    void reset()
    {
        beginResetModel();
        endResetModel();
    }
};

using Change = std::function<void(Model&)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_ModelChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isToldOfEachChange_data();
    void isToldOfEachChange();
    void isToldOfTheEnd();
    void isNotToldOfWhatChangesNoSize();
    void endsWithTheContext();
    void endsWithItsConnections();
};

void tst_ModelChanges::isToldOfEachChange_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
    row("data", [](Model& model) { model.setData(model.index(0, 0), model.index(0, 0).data().toInt() + 1); });
    row("rows inserted", [](Model& model) { model.insertRow(1); });
    row("rows removed", [](Model& model) { model.removeRow(1); });
    row("rows moved", &Model::swapFirstRows);
    row("columns inserted", [](Model& model) { model.insertColumn(1); });
    row("columns removed", [](Model& model) { model.removeColumn(1); });
    row("columns moved", &Model::swapFirstColumns);
    row("layout", [](Model& model) { Q_EMIT model.layoutChanged(); });
    row("reset", &Model::reset);
}

void tst_ModelChanges::isToldOfEachChange()
{
    QFETCH(Change, change);
    Model model(3, 3);
    int told = 0;
    onModelChange(&model, this, [&told] { ++told; });
    change(model);
    QCOMPARE(told, 1);
    change(model);
    QCOMPARE(told, 2);
    model.disconnect(this);
}

void tst_ModelChanges::isToldOfTheEnd()
{
    int told = 0;
    auto model = std::make_unique<Model>(1, 1);
    onModelChange(model.get(), this, [&told] { ++told; });
    model.reset();
    QCOMPARE(told, 1);
}

void tst_ModelChanges::isNotToldOfWhatChangesNoSize()
{
    Model model(2, 2);
    int told = 0;
    onModelChange(&model, this, [&told] { ++told; });
    Q_EMIT model.layoutAboutToBeChanged();
    model.setObjectName(QStringLiteral("name"));
    QCOMPARE(told, 0);
    model.disconnect(this);
}

void tst_ModelChanges::endsWithTheContext()
{
    Model model(1, 1);
    int told = 0;
    auto context = std::make_unique<QObject>();
    onModelChange(&model, context.get(), [&told] { ++told; });
    context.reset();
    model.insertRow(0);
    QCOMPARE(told, 0);
}

void tst_ModelChanges::endsWithItsConnections()
{
    Model model(2, 2);
    int told = 0;
    const auto connections = onModelChange(&model, this, [&told] { ++told; });
    for (const QMetaObject::Connection& connection : connections)
        QVERIFY(disconnect(connection));
    model.insertRow(0);
    model.removeColumn(0);
    model.reset();
    QCOMPARE(told, 0);
}

QTEST_MAIN(tst_ModelChanges)
#include "tst_ModelChanges.moc"
