#include "desktop/qt/settings/FormWidget.h"

#include "desktop/qt/TextStyles.h"
#include "desktop/qt/settings/FormRows.h"
#include "desktop/qt/settings/GroupBox.h"
#include "desktop/qt/widgets/Label.h"

#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace quillon::desktop {

namespace {

constexpr int kSectionSpacing = 14;
constexpr int kTitleSpacing = 6;
constexpr int kTitleIndent = 2;
constexpr int kAlertTextWidth = 400;

/// Room for the message in a few long lines, and for the title in the window's own.
void widen(QMessageBox& alert) {
    if (auto* grid = qobject_cast<QGridLayout*>(alert.layout())) {
        grid->setColumnMinimumWidth(grid->columnCount() - 1, kAlertTextWidth);
    }
}

} // namespace

FormWidget::FormWidget(Form form, const KeyReader& readKey, QWidget* parent)
    : QScrollArea(parent)
    , m_form(std::move(form)) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(QString::fromStdString(m_form.navigationTitle));
    // The page shows through.
    viewport()->setAutoFillBackground(false);

    auto* page = new QWidget;
    page->setAutoFillBackground(false);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kTitleSpacing);
    for (const FormSection& section : m_form.sections) {
        addSection(*column, section, readKey);
    }
    column->addStretch();
    setWidget(page);
    page->setAutoFillBackground(false);
    refreshAlert();
}

void FormWidget::refresh() {
    for (const auto& refreshRow : m_refreshers) {
        refreshRow();
    }
    refreshAlert();
}

void FormWidget::addSection(QVBoxLayout& column, const FormSection& section,
                            const KeyReader& readKey) {
    if (column.count() > 0) {
        column.addSpacing(kSectionSpacing - kTitleSpacing);
    }
    auto* title = new Label(section.title, textStyle::headline());
    title->setIndent(kTitleIndent);
    column.addWidget(title);

    auto* group = new GroupBox;
    group->setAccessibleName(title->text());
    for (const FormRow& row : section.rows) {
        auto widget = makeFormRow(row, readKey);
        group->addRow(widget.row);
        if (widget.refresh) {
            m_refreshers.push_back(std::move(widget.refresh));
        }
    }
    column.addWidget(group);
}

void FormWidget::refreshAlert() {
    const auto alert = m_form.alert ? m_form.alert() : std::nullopt;
    if (!alert) {
        if (m_alert) {
            m_alert->close();
        }
        return;
    }
    if (m_alert) {
        m_alert->setInformativeText(QString::fromStdString(alert->message));
        return;
    }
    m_alert = new QMessageBox(window());
    m_alert->setAttribute(Qt::WA_DeleteOnClose);
    m_alert->setIcon(QMessageBox::Warning);
    m_alert->setWindowTitle(QString::fromStdString(alert->title));
    m_alert->setText("<b>" + QString::fromStdString(alert->title).toHtmlEscaped() + "</b>");
    m_alert->setInformativeText(QString::fromStdString(alert->message));
    m_alert->addButton(QString::fromStdString(alert->button), QMessageBox::AcceptRole);
    widen(*m_alert);
    connect(m_alert, &QMessageBox::finished, this, [dismiss = alert->dismiss] { dismiss(); });
    m_alert->open();
}

} // namespace quillon::desktop
