#include "desktop/qt/settings/SettingsWidget.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/QtImages.h"
#include "desktop/qt/settings/AboutWidget.h"
#include "desktop/qt/settings/FormWidget.h"
#include "desktop/qt/settings/TabStripWidget.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

namespace quillon::desktop {

namespace {

const QEvent::Type kRefresh = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

SettingsWidget::SettingsWidget(SettingsView& view, KeyReader readKey, QWidget* parent)
    : QWidget(parent)
    , m_view(view)
    , m_readKey(std::move(readKey))
    , m_strip(new TabStripWidget(view.tabStrip(), [this](SettingsTab tab) { select(tab); }))
    , m_content(new QVBoxLayout) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_strip);
    column->addLayout(m_content, 1);
    const int padding = qRound(SettingsView::contentPadding);
    m_content->setContentsMargins(padding, padding, padding, padding);
    addToolbarActions();
    showPage();
    m_changes = m_view.objectWillChange.sink([this] { requestRefresh(); });
}

void SettingsWidget::addToolbarActions() {
    for (const ToolbarItem& item : m_view.toolbar()) {
        auto* action = new QAction(this);
        action->setText(QString::fromStdString(item.label));
        action->setToolTip(QString::fromStdString(item.toolTip));
        action->setIcon(
            QtImages::icon({Image::Kind::symbol, item.symbol, {}, {}}, SymbolTint::foreground));
        connect(action, &QAction::triggered, this, [run = item.action] { run(); });
        addAction(action);
    }
}

void SettingsWidget::select(SettingsTab tab) {
    if (tab != m_view.selectedTab()) {
        // At once: the controls of the page before must not act any more.
        m_view.select(tab);
        showPage();
    }
    m_strip->follow(m_view.tabStrip());
}

void SettingsWidget::showPage() {
    delete m_page;
    m_form = nullptr;
    auto content = m_view.content();
    if (auto* form = std::get_if<Form>(&content)) {
        m_form = new FormWidget(std::move(*form), m_readKey);
        m_page = m_form;
    } else {
        m_page = new AboutWidget(std::get<AboutPage>(content));
    }
    m_page->setMinimumSize(qRound(SettingsView::minimumContentSize.width),
                           qRound(SettingsView::minimumContentSize.height));
    m_content->addWidget(m_page);
}

bool SettingsWidget::event(QEvent* event) {
    if (event->type() == kRefresh) {
        refresh();
        return true;
    }
    if (event->type() == QEvent::PaletteChange) {
        requestRefresh();
    }
    return QWidget::event(event);
}

void SettingsWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), pageGround(palette()));
}

void SettingsWidget::requestRefresh() {
    if (!std::exchange(m_isRefreshPending, true)) {
        QCoreApplication::postEvent(this, new QEvent(kRefresh));
    }
}

void SettingsWidget::refresh() {
    m_isRefreshPending = false;
    m_strip->follow(m_view.tabStrip());
    if (m_form) {
        m_form->refresh();
    }
}

} // namespace quillon::desktop
