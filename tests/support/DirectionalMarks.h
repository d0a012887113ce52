#pragma once

#include <QString>

namespace TestSupport {

/// @p text between the two marks that the eliding widgets put around it.
inline QString marked(const QString& text)
{
    return QStringLiteral("\u202a%1\u202c").arg(text);
}

} // namespace TestSupport
