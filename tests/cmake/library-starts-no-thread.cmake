# cmake -DNM=... [-DOPTIONS=...] -DLIBRARY=... -P library-starts-no-thread.cmake
#
# The library starts no thread: nothing that starts one is among what it takes from others, be it the system, C++, Qt or
# Boost. QThread::currentThread() and the like only ask.
execute_process(COMMAND ${NM} --undefined-only --format=posix ${OPTIONS} ${LIBRARY}
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${NM} does not read ${LIBRARY}: ${errors}")
endif()
if(NOT output MATCHES "_ZN7QWidgetC")
  message(FATAL_ERROR "${LIBRARY} takes no QWidget from Qt: its imports were not read")
endif()

# Functions of C have their whole name here, mangled names their beginning.
set(functions
  pthread_create thrd_create clone clone3 g_thread_new g_thread_try_new
  CreateThread CreateRemoteThread _beginthread _beginthreadex QueueUserWorkItem CreateThreadpoolWork)
set(mangled
  _ZNSt6thread15_M_start_thread _ZN5boost6thread
  # What derives from QThread or QRunnable needs a constructor or the type.
  _ZN7QThreadC _ZTI7QThread _ZTV7QThread _ZN7QThread5start _ZN7QThread16createThreadImpl
  _ZN11QThreadPool _ZN9QRunnable _ZTI9QRunnable _ZN12QtConcurrent)
list(JOIN functions "|" functions)
list(JOIN mangled "|" mangled)

# Windows' functions are pointers, named __imp_.
string(REGEX MATCHALL "\n(__imp_)?((${functions})[@ ]|${mangled})[^\n]*" starts "\n${output}")
if(starts)
  list(JOIN starts " " starts)
  message(FATAL_ERROR "${LIBRARY} can start threads: ${starts}")
endif()
