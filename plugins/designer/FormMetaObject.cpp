#include "FormMetaObject.h"

#include <QMetaProperty>

#include <algorithm>

namespace Kestrel::Gui::Designer {

namespace {

// The layout that moc of Qt 5 writes.
namespace Layout {
constexpr unsigned oldestRevision = 7;
constexpr unsigned newestRevision = 8;
enum Header { Revision = 0, PropertyCount = 6, PropertyData = 7, EnumCount = 8, ConstructorCount = 10 };
enum Property { Flags = 2, Size = 3 };
constexpr unsigned stdCppSet = 0x00000100;
constexpr unsigned designable = 0x00001000;
constexpr unsigned notify = 0x00400000;
constexpr unsigned revisioned = 0x00800000;
} // namespace Layout

bool isKnown(const unsigned* data)
{
    // Nothing may follow the properties: they end the copy.
    return data[Layout::Revision] >= Layout::oldestRevision && data[Layout::Revision] <= Layout::newestRevision &&
           data[Layout::PropertyCount] > 0 && data[Layout::EnumCount] == 0 && data[Layout::ConstructorCount] == 0;
}

unsigned sizeOf(const unsigned* data)
{
    const unsigned count = data[Layout::PropertyCount];
    const unsigned begin = data[Layout::PropertyData];
    unsigned flags = 0;
    for (unsigned i = 0; i < count; ++i)
        flags |= data[begin + i * Layout::Size + Layout::Flags];
    unsigned size = begin + count * Layout::Size;
    for (const unsigned column : {Layout::notify, Layout::revisioned})
        if ((flags & column) != 0)
            size += count;
    return size;
}

} // namespace

FormMetaObject::FormMetaObject(const QMetaObject& original, const QVector<PropertyTreatment>& treatments)
    : m_original(original)
    , m_copy(original)
{
    if (!isKnown(original.d.data))
        return;
    copyData();
    m_valid = std::all_of(treatments.begin(), treatments.end(),
                          [this](const PropertyTreatment& treatment) { return treat(treatment); });
}

const QMetaObject* FormMetaObject::object() const
{
    return m_valid ? &m_copy : &m_original;
}

void FormMetaObject::copyData()
{
    const unsigned* data = m_original.d.data;
    m_data.assign(data, data + sizeOf(data));
    m_data.push_back(0); // the end, as moc marks it
    m_copy.d.data = m_data.data();
}

bool FormMetaObject::treat(const PropertyTreatment& treatment)
{
    const int index = m_copy.indexOfProperty(treatment.property);
    const int own = index - m_copy.propertyOffset();
    if (own < 0)
        return false;
    const bool hide = treatment.kind == PropertyTreatment::NotOffered;
    m_data[m_data[Layout::PropertyData] + unsigned(own) * Layout::Size + Layout::Flags] &=
        ~(hide ? Layout::designable : Layout::stdCppSet);
    const QMetaProperty treated = m_copy.property(index);
    return QLatin1String(treated.name()) == QLatin1String(treatment.property) &&
           !(hide ? treated.isDesignable() : treated.hasStdCppSet());
}

} // namespace Kestrel::Gui::Designer
