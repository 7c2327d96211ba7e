#pragma once

#include "desktop/qt/settings/KeyReader.h"
#include "settings/SettingsView.h"

#include <QAbstractButton>

#include <memory>

namespace quillon::desktop {

/// Shows a recorder control and gives it clicks and keys.
///
/// To assistive tools it is a button, and what they do to a button is a click.
///
/// While it records and has the keyboard, it holds the keyboard alone, so that combinations that
/// the desktop has taken for itself arrive here too. It lets go when the recording ends, when it
/// loses the keyboard and when it goes off the screen; the server lets go of it when the program
/// ends.
class RecorderWidget : public QAbstractButton {
public:
    RecorderWidget(const ShortcutRecorderView& view, KeyReader readKey, QWidget* parent = nullptr);
    ~RecorderWidget() override;

    void follow(const ShortcutRecorderView& view);

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// The space bar presses the button for who works the window by keys, and so sees its ring. To
    /// the control every key is one that it records, or nothing.
    bool isPressedBy(const QKeyEvent& key) const;
    void updateGrab();
    void setGrabbed(bool grabbed);

    std::unique_ptr<ShortcutRecorderControl> m_control;
    KeyReader m_readKey;
    bool m_hasGrab = false;
};

} // namespace quillon::desktop
