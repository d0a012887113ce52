#include <KQt/Ui/AlwaysOnTop.h>

#include <QWidget>

#include <utility>

namespace Kestrel::Gui::Helpers {

AlwaysOnTop::AlwaysOnTop(QWidget& widget)
    : AlwaysOnTop([&widget] { return widget.windowFlags(); },
                  [&widget](Qt::WindowFlags flags) { widget.setWindowFlags(flags); })
{
}

AlwaysOnTop::AlwaysOnTop(std::function<Qt::WindowFlags()> flagsGetter, std::function<void(Qt::WindowFlags)> flagsSetter)
    : m_flagsGetter(std::move(flagsGetter))
    , m_flagsSetter(std::move(flagsSetter))
{
}

AlwaysOnTop::AlwaysOnTop(const AlwaysOnTop& other) = default;
AlwaysOnTop& AlwaysOnTop::operator=(const AlwaysOnTop& other) = default;
AlwaysOnTop::~AlwaysOnTop() = default;

bool AlwaysOnTop::IsAlwaysOnTop() const
{
    return GetFlags().testFlag(Qt::WindowStaysOnTopHint);
}

void AlwaysOnTop::EnableAlswaysOnTop()
{
    CheckInvariant();
    if (!IsAlwaysOnTop())
        SetFlags(GetFlags() | Qt::WindowStaysOnTopHint);
}

void AlwaysOnTop::DisableAlswaysOnTop()
{
    CheckInvariant();
    if (IsAlwaysOnTop())
        SetFlags(GetFlags() & ~Qt::WindowFlags(Qt::WindowStaysOnTopHint));
}

void AlwaysOnTop::SetAlwaysOnTop(bool alwaysOnTop)
{
    if (alwaysOnTop)
        EnableAlswaysOnTop();
    else
        DisableAlswaysOnTop();
}

Qt::WindowFlags AlwaysOnTop::GetFlags() const
{
    return m_flagsGetter();
}

void AlwaysOnTop::SetFlags(Qt::WindowFlags flags)
{
    m_flagsSetter(flags);
}

void AlwaysOnTop::CheckInvariant() const
{
    // Empty functions report themselves at their first use.
}

} // namespace Kestrel::Gui::Helpers
