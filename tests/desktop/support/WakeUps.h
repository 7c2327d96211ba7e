#pragma once

#include <sys/types.h>

namespace quillon::test {

/// How often all threads of a process have come to the processor of their own accord.
long wakeUpsOf(pid_t process);

/// Whether all threads of a process wait for something to happen, and none for a time to come: left
/// alone, it will not wake up again, however long one watches.
bool hasNothingDue(pid_t process);

} // namespace quillon::test
