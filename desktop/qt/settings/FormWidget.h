#pragma once

#include "desktop/qt/settings/KeyReader.h"
#include "settings/SettingsView.h"

#include <QPointer>
#include <QScrollArea>

#include <functional>
#include <vector>

class QMessageBox;
class QVBoxLayout;

namespace quillon::desktop {

/// Lays any form out: titled groups of rows, labels at the left, controls at the right. The widgets
/// are made once; `refresh` brings what they show up to date and writes nothing.
class FormWidget : public QScrollArea {
public:
    FormWidget(Form form, const KeyReader& readKey, QWidget* parent = nullptr);

    void refresh();

private:
    void addSection(QVBoxLayout& column, const FormSection& section, const KeyReader& readKey);
    void refreshAlert();

    Form m_form;
    std::vector<std::function<void()>> m_refreshers;
    QPointer<QMessageBox> m_alert;
};

} // namespace quillon::desktop
