#pragma once

#include <sys/types.h>

#include <map>
#include <string>

namespace quillon::bench {

/// What a process has used since it began, all its threads together.
struct ProcessUsage {
    /// Voluntary and involuntary context switches: how often one of its threads was put to sleep
    /// or aside, and so how often one woke up.
    long contextSwitches = 0;
    /// The same by thread. One that has ended in the meantime takes its last ones with it.
    std::map<std::string, long> contextSwitchesByThread;
    /// Clock ticks on a processor, in its own code and in the kernel's for it.
    long processorTicks = 0;
    /// The same to the nanosecond, in seconds.
    double processorSeconds = 0;

    /// Reads /proc; throws when there is no such process, or none any more.
    static ProcessUsage of(pid_t process);
    ProcessUsage since(const ProcessUsage& earlier) const;
};

/// Whether the main thread waits for something, and not for a processor.
bool isAsleep(pid_t process);

/// What a process holds in memory, in kilobytes.
struct ProcessMemory {
    /// All resident pages.
    long resident = 0;
    /// Those of them that nobody shares.
    long unique = 0;
    /// Those that came from no file: they do not change with what other programs map.
    long anonymous = 0;

    static ProcessMemory of(pid_t process);
};

} // namespace quillon::bench
