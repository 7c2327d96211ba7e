#pragma once

#include <QMenuBar>
#include <QPainter>

namespace quillon::desktop {

/// A menu bar that stands beside other things in one line: it paints its titles and no ground, edge
/// or line of its own.
class PlainMenuBar : public QMenuBar {
public:
    using QMenuBar::QMenuBar;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        for (QAction* title : actions()) {
            const QRect area = actionGeometry(title);
            const bool isActive = title == activeAction();
            if (isActive) {
                painter.setPen(Qt::NoPen);
                painter.setBrush(palette().highlight());
                painter.drawRoundedRect(area, 4, 4);
            }
            painter.setPen(
                palette().color(isActive ? QPalette::HighlightedText : QPalette::WindowText));
            painter.drawText(area, Qt::AlignCenter | Qt::TextShowMnemonic, title->text());
        }
    }
};

} // namespace quillon::desktop
