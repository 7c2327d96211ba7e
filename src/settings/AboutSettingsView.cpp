#include "settings/AboutSettingsView.h"

#include "platform/Host.h"
#include "platform/ProgramIcon.h"

namespace quillon {

namespace {

std::optional<Image> icon() {
    auto image = programIcon(Host::current().images(), "pencil.and.outline", "");
    if (image) {
        image->size = AboutPage::iconSize;
    }
    return image;
}

} // namespace

PageContent AboutSettingsView::content() {
    return AboutPage{
        "About",
        icon(),
        "Quillon Mark",
        "Screen Annotation & Presentation Tool",
        {
            {"Built with SwiftUI & AppKit", "swift"},
            {"macOS 15.1.1+ (Sequoia)", "macwindow"},
            {"Menu Bar Utility", "app.badge"},
        },
    };
}

} // namespace quillon
