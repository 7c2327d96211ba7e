#include "desktop/qt/settings/AboutWidget.h"

#include "desktop/qt/TextStyles.h"
#include "desktop/qt/widgets/Divider.h"
#include "desktop/qt/widgets/Label.h"
#include "desktop/qt/widgets/Picture.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillon::desktop {

namespace {

constexpr int kPadding = 16;
constexpr int kFactSymbolSize = 16;

} // namespace

AboutWidget::AboutWidget(const AboutPage& page, QWidget* parent)
    : QWidget(parent) {
    setAccessibleName(QString::fromStdString(page.navigationTitle));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    column->setSpacing(qRound(AboutPage::spacing));
    column->addStretch();

    const qreal side = AboutPage::iconSize.width;
    QWidget* const icon = page.icon ? new Picture(*page.icon, side, SystemColor::controlAccentColor)
                                    : new QWidget(this);
    icon->setFixedSize(qRound(side), qRound(side));
    column->addWidget(icon, 0, Qt::AlignHCenter);
    column->addWidget(new Label(page.name, textStyle::title()), 0, Qt::AlignHCenter);
    column->addWidget(
        new Label(page.purpose, textStyle::headline(), SystemColor::secondaryLabelColor), 0,
        Qt::AlignHCenter);
    column->addWidget(Divider::across());

    auto* facts = new QWidget;
    auto* lines = new QVBoxLayout(facts);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(qRound(AboutPage::lineSpacing));
    for (const AboutLine& fact : page.lines) {
        auto* line = new QHBoxLayout;
        line->setSpacing(kFactSymbolSize / 2);
        line->addWidget(
            Picture::ofSymbol(fact.symbol, kFactSymbolSize, SystemColor::secondaryLabelColor));
        line->addWidget(
            new Label(fact.text, textStyle::subheadline(), SystemColor::secondaryLabelColor));
        line->addStretch();
        lines->addLayout(line);
    }
    column->addWidget(facts, 0, Qt::AlignHCenter);
    column->addStretch();
}

} // namespace quillon::desktop
