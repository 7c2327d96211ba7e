#pragma once

#include "desktop/qt/settings/KeyReader.h"
#include "settings/SettingsView.h"

#include <QWidget>

namespace quillon::desktop {

class BorderlessButton;
class Capsule;
class RecorderWidget;

/// What stands at the right of a shortcut's row: its binding, the recorder and the button that
/// clears it, whose room stays when it is absent, so that all recorders stand in one column.
class ShortcutRowWidget : public QWidget {
public:
    ShortcutRowWidget(ShortcutRow row, const KeyReader& readKey, QWidget* parent = nullptr);

    void refresh();

private:
    void showBinding(const ShortcutRowState& state);

    ShortcutRow m_row;
    Capsule* m_binding;
    RecorderWidget* m_recorder;
    BorderlessButton* m_clear;
};

} // namespace quillon::desktop
