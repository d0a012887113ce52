#include <KQt/Ui/Platforms/win/TaskbarListIndicator.h>

#include <QCoreApplication>
#include <QPlatformSurfaceEvent>

#include <qt_windows.h>

#include <shobjidl.h>

namespace Kestrel::Gui {

namespace {

UINT buttonCreatedMessage()
{
    static const UINT message = RegisterWindowMessageW(L"TaskbarButtonCreated");
    return message;
}

TBPFLAG flagFor(StatefulTaskbarIndicator::Look look)
{
    using Look = StatefulTaskbarIndicator::Look;
    switch (look) {
    case Look::Hidden:
        return TBPF_NOPROGRESS;
    case Look::Normal:
        return TBPF_NORMAL;
    case Look::Busy:
        return TBPF_INDETERMINATE;
    case Look::Paused:
        return TBPF_PAUSED;
    case Look::Stopped:
        return TBPF_ERROR;
    }
    return TBPF_NOPROGRESS;
}

bool isClosing(QEvent* event)
{
    return event->type() == QEvent::PlatformSurface && static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
                                                           QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed;
}

} // namespace

TaskbarListIndicator::TaskbarListIndicator() = default;

TaskbarListIndicator::~TaskbarListIndicator()
{
    if (m_taskbarList)
        m_taskbarList->Release();
}

void TaskbarListIndicator::setWindow(QWindow* window)
{
    m_window = window;
    if (!window)
        return;
    window->installEventFilter(this);
    QCoreApplication::instance()->installNativeEventFilter(this);
    HWND handle = nativeWindow();
    if (handle && IsWindowVisible(handle))
        buttonCreated(handle);
}

/// The native window may go, and come back as another one, while the QWindow lives.
bool TaskbarListIndicator::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && isClosing(event))
        m_button = nullptr;
    return false;
}

/// Posted messages may come by twice, which does no harm.
bool TaskbarListIndicator::nativeEventFilter(const QByteArray& /*eventType*/, void* message, long* /*result*/)
{
    const MSG* native = static_cast<MSG*>(message);
    if (native->message == buttonCreatedMessage() && native->hwnd && native->hwnd == nativeWindow())
        buttonCreated(native->hwnd);
    return false;
}

void TaskbarListIndicator::stateChanged()
{
    update();
}

/// Null where there is none yet; it is not made for this.
HWND TaskbarListIndicator::nativeWindow() const
{
    return m_window && m_window->handle() ? reinterpret_cast<HWND>(m_window->winId()) : nullptr;
}

void TaskbarListIndicator::buttonCreated(HWND window)
{
    m_button = window;
    if (look() != Look::Hidden)
        update();
}

bool TaskbarListIndicator::prepareTaskbarList()
{
    if (m_taskbarList)
        return true;
    ITaskbarList3* list = nullptr;
    if (FAILED(CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&list))) || !list)
        return false;
    if (FAILED(list->HrInit())) {
        list->Release();
        return false;
    }
    m_taskbarList = list;
    return true;
}

void TaskbarListIndicator::update()
{
    if (!m_button || !prepareTaskbarList())
        return;
    // The value first: it would end a busy look, and a hidden indicator would come back with it.
    const qint64 range = static_cast<qint64>(maximum()) - minimum();
    if (look() != Look::Hidden && range > 0)
        m_taskbarList->SetProgressValue(m_button, static_cast<ULONGLONG>(static_cast<qint64>(value()) - minimum()),
                                        static_cast<ULONGLONG>(range));
    m_taskbarList->SetProgressState(m_button, flagFor(look()));
}

} // namespace Kestrel::Gui
