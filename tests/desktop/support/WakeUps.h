#pragma once

#include <sys/types.h>

namespace quillon::test {

/// How often all threads of a process have come to the processor of their own accord.
long wakeUpsOf(pid_t process);

} // namespace quillon::test
