#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QPalette>
#include <QTimer>
#include <QVariant>

namespace quillon::desktop {

/// The light or dark look that the user chose for the whole desktop, as the settings portal of the
/// session bus tells it, now and whenever it changes. The application object must exist.
///
/// A desktop with a theme of its own for the toolkit has set a dark palette by itself where dark is
/// wanted; only a light one is made dark here.
class ColorScheme : public QObject {
public:
    /// Asks at once and does not wait for the answer. Without a bus or a portal the palette stays
    /// as it is.
    explicit ColorScheme(const QDBusConnection& bus);

    /// A palette with light text on dark grounds and the accent of `light`.
    static QPalette darkPalette(const QPalette& light);

private:
    void ask();
    void follow(QVariant value);

    QDBusConnection m_bus;
    QPalette m_desktopPalette;
    /// Carries a signal of the bus over into a turn of its own.
    QTimer m_changed;
};

} // namespace quillon::desktop
