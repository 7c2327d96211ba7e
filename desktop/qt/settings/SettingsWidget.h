#pragma once

#include "desktop/qt/settings/KeyReader.h"
#include "foundation/Cancellable.h"
#include "settings/SettingsView.h"

#include <QWidget>

class QVBoxLayout;

namespace quillon::desktop {

class FormWidget;
class TabStripWidget;

/// Lays the settings out: the strip of tabs, and the page of the selected one below. The buttons of
/// the tool bar are the widget's actions.
///
/// When anything changes that a page may show, whoever changed it, the controls look again at their
/// values in a later turn, once for all changes of one turn. No control is made anew for it.
class SettingsWidget : public QWidget {
public:
    /// The view must outlive the widget.
    SettingsWidget(SettingsView& view, KeyReader readKey, QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addToolbarActions();
    void select(SettingsTab tab);
    void showPage();
    void requestRefresh();
    void refresh();

    SettingsView& m_view;
    KeyReader m_readKey;
    TabStripWidget* m_strip;
    QVBoxLayout* m_content;
    QWidget* m_page = nullptr;
    /// The page, when it is a form.
    FormWidget* m_form = nullptr;
    bool m_isRefreshPending = false;
    Cancellable m_changes;
};

} // namespace quillon::desktop
