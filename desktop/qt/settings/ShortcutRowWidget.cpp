#include "desktop/qt/settings/ShortcutRowWidget.h"

#include "desktop/qt/TextStyles.h"
#include "desktop/qt/settings/BorderlessButton.h"
#include "desktop/qt/settings/Capsule.h"
#include "desktop/qt/settings/RecorderWidget.h"

#include <QHBoxLayout>

#include <utility>

namespace quillon::desktop {

ShortcutRowWidget::ShortcutRowWidget(ShortcutRow row, const KeyReader& readKey, QWidget* parent)
    : QWidget(parent)
    , m_row(std::move(row))
    , m_binding(new Capsule({}, textStyle::body()))
    , m_recorder(new RecorderWidget(m_row.state().recorder, readKey))
    , m_clear(new BorderlessButton(QString::fromUtf8(ShortcutRow::clearTitle))) {
    const auto label = QString::fromStdString(m_row.label);
    m_recorder->setFixedSize(qRound(ShortcutRow::recorderSize.width),
                             qRound(ShortcutRow::recorderSize.height));
    m_recorder->setAccessibleDescription(label);
    m_clear->setAccessibleDescription(label);
    QSizePolicy keepsItsRoom = m_clear->sizePolicy();
    keepsItsRoom.setRetainSizeWhenHidden(true);
    m_clear->setSizePolicy(keepsItsRoom);
    connect(m_clear, &BorderlessButton::clicked, this, [this] { m_row.clear(); });

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_binding, 0, Qt::AlignVCenter);
    layout->addWidget(m_recorder);
    layout->addWidget(m_clear);
    refresh();
}

void ShortcutRowWidget::refresh() {
    const ShortcutRowState state = m_row.state();
    showBinding(state);
    m_recorder->follow(state.recorder);
    m_recorder->setAttribute(Qt::WA_TransparentForMouseEvents, !state.allowsHitTesting);
    m_clear->setVisible(state.clear != ShortcutRowState::Clear::absent);
    m_clear->setEnabled(state.clear == ShortcutRowState::Clear::enabled);
}

void ShortcutRowWidget::showBinding(const ShortcutRowState& state) {
    m_binding->setFilled(state.binding.has_value());
    m_binding->setFont(state.binding ? textStyle::roundedBoldCaption() : textStyle::body());
    m_binding->setText(state.binding ? QString::fromStdString(*state.binding)
                                     : QString::fromUtf8(ShortcutRow::notSetText));
    m_binding->setColor(state.binding ? SystemColor::labelColor : SystemColor::secondaryLabelColor);
}

} // namespace quillon::desktop
