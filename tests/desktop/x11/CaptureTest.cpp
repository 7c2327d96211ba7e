#include "desktop/x11/CaptureTest.h"

#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>

namespace quillon::test {

int attachmentsOfOwnMemory() {
    std::ifstream table("/proc/sysvipc/shm");
    std::string line;
    std::getline(table, line);
    int attachments = 0;
    while (std::getline(table, line)) {
        std::istringstream fields(line);
        long key = 0;
        long id = 0;
        long permissions = 0;
        long size = 0;
        int creator = 0;
        int last = 0;
        int attached = 0;
        fields >> key >> id >> permissions >> size >> creator >> last >> attached;
        attachments += creator == getpid() ? attached : 0;
    }
    return attachments;
}

} // namespace quillon::test
