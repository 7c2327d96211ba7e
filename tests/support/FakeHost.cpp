#include "support/FakeHost.h"

namespace quillon::test {

FakeHost::FakeHost() = default;
FakeHost::~FakeHost() = default;

} // namespace quillon::test
