#include "toolbar/FloatingToolbarView.h"

#include "foundation/NumberText.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr CGFloat kDividerHeight = 24;
constexpr CGFloat kMenuSwatchSize = 24;
constexpr CGFloat kSliderWidth = 150;
constexpr int kLineWidthPresets[] = {2, 4, 6, 8, 12, 20};

std::size_t combined(std::size_t seed, std::size_t value) {
    return seed ^ (value + 0x9E3779B9U + (seed << 6U) + (seed >> 2U));
}

} // namespace

std::size_t FloatingToolbarView::ToolbarItem::hash() const {
    const std::size_t payload = std::visit(
        [](const auto& value) { return std::hash<std::decay_t<decltype(value)>>()(value); },
        m_value);
    return combined(combined(0, m_value.index()), payload);
}

FloatingToolbarView::FloatingToolbarView(Binding<DrawingTool> selectedTool,
                                         Binding<Color> selectedColor, Binding<CGFloat> lineWidth,
                                         Binding<std::vector<Color>> quickColors,
                                         Binding<bool> isWhiteboardMode,
                                         std::function<void()> onClear,
                                         std::function<void()> onUndo, std::function<void()> onRedo,
                                         bool canUndo, bool canRedo)
    : m_selectedTool(std::move(selectedTool))
    , m_selectedColor(std::move(selectedColor))
    , m_lineWidth(std::move(lineWidth))
    , m_quickColors(std::move(quickColors))
    , m_isWhiteboardMode(std::move(isWhiteboardMode))
    , m_onClear(std::move(onClear))
    , m_onUndo(std::move(onUndo))
    , m_onRedo(std::move(onRedo))
    , m_canUndo(canUndo)
    , m_canRedo(canRedo) {}

void FloatingToolbarView::setHistory(bool canUndo, bool canRedo) {
    if (canUndo != m_canUndo || canRedo != m_canRedo) {
        m_canUndo = canUndo;
        m_canRedo = canRedo;
        objectWillChange.send();
    }
}

void FloatingToolbarView::setShowColorPicker(bool shows) {
    if (std::exchange(m_showColorPicker, shows) != shows) {
        objectWillChange.send();
    }
}

std::unique_ptr<ColorPickerView> FloatingToolbarView::makeColorPicker() const {
    return std::make_unique<ColorPickerView>(m_selectedColor, m_quickColors);
}

PaletteRow FloatingToolbarView::row() {
    const PaletteDivider divider{kDividerHeight};
    return {{toolSelectionMenu(), divider, colorPaletteMenu(), divider, lineWidthMenu(), divider,
             whiteboardToggle(), divider, undoRedoButtons(), divider, clearButton()}};
}

PaletteControl FloatingToolbarView::control(ToolbarItem item, ToolbarButton button) {
    button.isHovered = m_hoverItem == item;
    // The key is kept as it is now: the tool may change while the pointer rests on its button.
    const auto onHover = [this, item = std::move(item)](bool isInside) {
        m_hoverItem = isInside ? std::optional(item) : std::nullopt;
        objectWillChange.send();
    };
    return {.button = std::move(button), .onHover = onHover};
}

PaletteControl FloatingToolbarView::toolSelectionMenu() {
    const DrawingTool current = m_selectedTool.get();
    auto result = control(ToolbarItem::tool(current),
                          {.icon = std::string(systemImage(current)),
                           .label = std::string(displayName(current)),
                           .action = [this] { m_showToolOptions = !m_showToolOptions; }});
    ToolMenu menu;
    for (const auto& [tool, rawValue] : RawValues<DrawingTool>::table) {
        menu.entries.push_back({.icon = std::string(systemImage(tool)),
                                .label = std::string(displayName(tool)),
                                .hasCheckmark = tool == current,
                                .action = [this, chosen = tool] { m_selectedTool.set(chosen); }});
    }
    result.menu = std::move(menu);
    return result;
}

PaletteControl FloatingToolbarView::colorPaletteMenu() {
    const auto showPopover = [this] { setShowColorPicker(true); };
    auto result = control(ToolbarItem::action("color"),
                          {.icon = "paintpalette.fill", .label = "Color", .action = showPopover});
    result.menu = ColorMenu{.sections = {swatchSection("Quick Colors", m_quickColors.get()),
                                         swatchSection("More Colors", Color::defaultPalette())},
                            .customLabel = "Custom Color...",
                            .customIcon = "eyedropper",
                            .customAction = showPopover};
    return result;
}

SwatchSection FloatingToolbarView::swatchSection(std::string title,
                                                 const std::vector<Color>& colors) const {
    SwatchSection section{std::move(title), {}};
    for (const Color& color : colors) {
        section.swatches.push_back(
            {.face = {color, color == m_selectedColor.get(), kMenuSwatchSize},
             .action = [selected = m_selectedColor, color] { selected.set(color); }});
    }
    return section;
}

PaletteControl FloatingToolbarView::lineWidthMenu() {
    const std::string widthText = pointsText(m_lineWidth.get());
    auto result = control(ToolbarItem::action("width"),
                          {.icon = "lineweight", .label = widthText, .action = [this] {
                               m_showLineWidthSlider = !m_showLineWidthSlider;
                           }});
    LineWidthMenu menu{.heading = "Line Width: " + widthText,
                       .slider = {.value = m_lineWidth,
                                  .minimum = 1,
                                  .maximum = 30,
                                  .step = 1,
                                  .accessibilityLabel = "Line Width",
                                  .minimumIcon = "lineweight",
                                  .maximumIcon = "lineweight",
                                  .width = kSliderWidth},
                       .presets = {}};
    for (const int preset : kLineWidthPresets) {
        const CGFloat width = preset;
        menu.presets.push_back(
            {.height = width, .action = [this, width] { m_lineWidth.set(width); }});
    }
    result.menu = std::move(menu);
    return result;
}

PaletteControl FloatingToolbarView::whiteboardToggle() {
    const bool isOn = m_isWhiteboardMode.get();
    return control(ToolbarItem::action("whiteboard"),
                   {.icon = isOn ? "square.fill" : "square",
                    .label = "Whiteboard",
                    .isSelected = isOn,
                    .action = [this] { m_isWhiteboardMode.set(!m_isWhiteboardMode.get()); }});
}

PaletteGroup FloatingToolbarView::undoRedoButtons() {
    auto undo = control(ToolbarItem::action("undo"), {.icon = "arrow.uturn.backward",
                                                      .label = "Undo",
                                                      .isDisabled = !m_canUndo,
                                                      .action = m_onUndo});
    undo.isDisabled = !m_canUndo;
    undo.keyEquivalent = KeyEquivalent{'z', false};
    auto redo = control(ToolbarItem::action("redo"), {.icon = "arrow.uturn.forward",
                                                      .label = "Redo",
                                                      .isDisabled = !m_canRedo,
                                                      .action = m_onRedo});
    redo.isDisabled = !m_canRedo;
    redo.keyEquivalent = KeyEquivalent{'z', true};
    return {.spacing = 0, .controls = {std::move(undo), std::move(redo)}};
}

PaletteControl FloatingToolbarView::clearButton() {
    return control(ToolbarItem::action("clear"),
                   {.icon = "trash", .label = "Clear", .isDestructive = true, .action = m_onClear});
}

} // namespace quillon
