#pragma once

#include <QString>

#include <fuzzer/FuzzedDataProvider.h>

#include <string>

/// Texts for fuzzers.
namespace Fuzz {

/// Any sequence of UTF-16 units: unpaired surrogates and directional marks as well.
inline QString anyText(FuzzedDataProvider& data, std::size_t longest)
{
    const std::string bytes = data.ConsumeRandomLengthString(2 * longest);
    QString text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        text += QChar(static_cast<uchar>(bytes[i]), static_cast<uchar>(bytes[i + 1]));
    return text;
}

/// Text as it is typed or stored: what is no UTF-8 becomes replacement characters.
inline QString utf8Text(FuzzedDataProvider& data, std::size_t longest)
{
    return QString::fromStdString(data.ConsumeRandomLengthString(longest));
}

} // namespace Fuzz
