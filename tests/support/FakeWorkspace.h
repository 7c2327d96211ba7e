#pragma once

#include "platform/Workspace.h"

#include <string>
#include <vector>

namespace quillon::test {

class FakeWorkspace : public Workspace {
public:
    bool openURL(const std::string& url) override {
        openedURLs.push_back(url);
        return true;
    }

    std::vector<std::string> openedURLs;
};

} // namespace quillon::test
