#pragma once

#include "foundation/Binding.h"
#include "model/DrawingTool.h"
#include "platform/ControlsView.h"
#include "toolbar/ColorPickerView.h"
#include "toolbar/PaletteRow.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quillon {

/// The small palette that floats over the annotations: tool, colour and line width, the whiteboard
/// switch, undo and redo, and clear. It owns no model: what it changes is a binding or a callback.
///
/// Its place, and the drag by its body, are the affair of the view on which it stands. Its private
/// states live as long as it does and start anew with the next palette.
class FloatingToolbarView : public ControlsView {
public:
    /// A control under the pointer.
    class ToolbarItem {
    public:
        static ToolbarItem tool(DrawingTool tool) { return ToolbarItem(tool); }
        static ToolbarItem action(std::string name) { return ToolbarItem(std::move(name)); }

        /// Feeds the number of the case, 0 for a tool and 1 for an action, and then the payload.
        std::size_t hash() const;

        friend bool operator==(const ToolbarItem&, const ToolbarItem&) = default;

    private:
        explicit ToolbarItem(std::variant<DrawingTool, std::string> value)
            : m_value(std::move(value)) {}

        std::variant<DrawingTool, std::string> m_value;
    };

    /// The colour popover hangs below the whole palette. In points.
    static constexpr CGSize popoverFrame{280, 350};

    FloatingToolbarView(Binding<DrawingTool> selectedTool, Binding<Color> selectedColor,
                        Binding<CGFloat> lineWidth, Binding<std::vector<Color>> quickColors,
                        Binding<bool> isWhiteboardMode, std::function<void()> onClear,
                        std::function<void()> onUndo, std::function<void()> onRedo, bool canUndo,
                        bool canRedo);

    /// What the row holds now.
    PaletteRow row();

    /// The newer values of two of the inputs.
    void setHistory(bool canUndo, bool canRedo);

    bool showColorPicker() const { return m_showColorPicker; }
    /// The host writes false when the popover was closed.
    void setShowColorPicker(bool shows);
    /// The content of a popover that comes on the screen.
    std::unique_ptr<ColorPickerView> makeColorPicker() const;

    const std::optional<ToolbarItem>& hoverItem() const { return m_hoverItem; }
    // Written by clicks and read by nothing: their menus open by themselves.
    bool showLineWidthSlider() const { return m_showLineWidthSlider; }
    bool showToolOptions() const { return m_showToolOptions; }

private:
    PaletteControl toolSelectionMenu();
    PaletteControl colorPaletteMenu();
    PaletteControl lineWidthMenu();
    PaletteControl whiteboardToggle();
    PaletteGroup undoRedoButtons();
    PaletteControl clearButton();

    PaletteControl control(ToolbarItem item, ToolbarButton button);
    SwatchSection swatchSection(std::string title, const std::vector<Color>& colors) const;

    Binding<DrawingTool> m_selectedTool;
    Binding<Color> m_selectedColor;
    Binding<CGFloat> m_lineWidth;
    Binding<std::vector<Color>> m_quickColors;
    Binding<bool> m_isWhiteboardMode;
    std::function<void()> m_onClear;
    std::function<void()> m_onUndo;
    std::function<void()> m_onRedo;
    bool m_canUndo;
    bool m_canRedo;
    bool m_showColorPicker = false;
    bool m_showLineWidthSlider = false;
    bool m_showToolOptions = false;
    std::optional<ToolbarItem> m_hoverItem;
};

} // namespace quillon

template <>
struct std::hash<quillon::FloatingToolbarView::ToolbarItem> {
    std::size_t operator()(const quillon::FloatingToolbarView::ToolbarItem& item) const {
        return item.hash();
    }
};
