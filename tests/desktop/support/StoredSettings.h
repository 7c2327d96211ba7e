#pragma once

#include "model/AppSettings.h"

#include <functional>
#include <string>

namespace quillon::test {

/// The settings of a program that does not run, as they stand in the folder of a desktop.
///
/// Opens them as the program itself would, lets `change` have them, and closes them again.
void withStoredSettings(const std::string& configFolder,
                        const std::function<void(AppSettings&)>& change);

} // namespace quillon::test
