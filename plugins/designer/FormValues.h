#pragma once

#include "FormProperties.h"

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

/// Walkthrough properties as a form editor keeps them, by name; those that are empty are not among them.
///
/// The names are marked as not to be translated: a translated name would not be found again.
FormProperties::Values formValues(QDesignerFormEditorInterface& editor, const WalkthroughProperties& properties);

} // namespace Kestrel::Gui::Designer
