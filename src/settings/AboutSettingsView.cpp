#include "settings/AboutSettingsView.h"

#include "platform/Host.h"

namespace quillon {

namespace {

/// The asset if the program came with it, else the symbol that stands for it in the tray as well.
std::optional<Image> icon() {
    const auto& images = Host::current().images();
    auto image = images.named("QuillonIcon");
    if (!image) {
        image = images.symbol("pencil.and.outline", "");
    }
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
