#include "benchmarks/ChosenScreen.h"

#include "benchmarks/Statistics.h"

namespace quillon::bench {

test::VirtualDesktop::Options screenOf(const std::vector<std::string>& arguments) {
    test::VirtualDesktop::Options screen;
    screen.width = option(arguments, "--width", screen.width);
    screen.height = option(arguments, "--height", screen.height);
    return screen;
}

std::string subjectOn(const std::string& subject, const test::VirtualDesktop::Options& screen) {
    const test::VirtualDesktop::Options usual;
    if (screen.width == usual.width && screen.height == usual.height) {
        return subject;
    }
    return subject + ", " + std::to_string(screen.width) + "×" + std::to_string(screen.height);
}

} // namespace quillon::bench
