#pragma once

#include <QMetaObject>
#include <QVector>

#include <vector>

namespace Kestrel::Gui::Designer {

/// How a form editor treats a property of a class differently from what its meta-object says.
struct PropertyTreatment
{
    enum Kind {
        NotOffered,   ///< not shown for editing
        SetByProperty ///< compiled forms call setProperty() and not the setter
    };

    const char* property;
    Kind kind;
};

/// A copy of a class's meta-object, for widgets in a form editor, in which some properties are treated differently.
///
/// It has the class's name, base class and all else of the original. qobject_cast to the class itself does not know
/// it: casts to base classes work.
class FormMetaObject
{
public:
    FormMetaObject(const QMetaObject& original, const QVector<PropertyTreatment>& treatments);

    /// The copy, or the original where meta-objects are laid out in another way than known here.
    const QMetaObject* object() const;

private:
    void copyData();
    bool treat(const PropertyTreatment& treatment);

    const QMetaObject& m_original;
    std::vector<unsigned> m_data;
    QMetaObject m_copy;
    bool m_valid = false;
};

} // namespace Kestrel::Gui::Designer
