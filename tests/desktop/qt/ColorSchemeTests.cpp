#include "desktop/qt/Appearance.h"
#include "desktop/qt/ColorScheme.h"
#include "desktop/support/ChildProcess.h"
#include "desktop/support/Eventually.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QGuiApplication>
#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

using namespace desktop;

namespace {

const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");

/// A portal that knows one setting.
class FakePortal : public QDBusVirtualObject {
public:
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() != "Read" ||
            message.arguments() != QVariantList{"org.freedesktop.appearance", "color-scheme"}) {
            return false;
        }
        const QDBusVariant answer(QVariant::fromValue(QDBusVariant(scheme)));
        return bus.send(message.createReply(QVariant::fromValue(answer)));
    }

    uint scheme = 0;
};

class ColorSchemeTest : public testing::Test {
protected:
    ~ColorSchemeTest() override {
        QGuiApplication::setPalette(m_before);
        QDBusConnection::disconnectFromBus("portal");
        QDBusConnection::disconnectFromBus("program");
    }

    void startBus() {
        m_daemon = std::make_unique<ChildProcess>(
            std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--print-address"},
            ChildProcess::Environment{{"PATH", "/usr/bin:/bin"}});
        ASSERT_TRUE(eventually([this] { return !m_daemon->standardOutput().empty(); }));
        m_address = QString::fromStdString(m_daemon->standardOutput()).trimmed();
    }
    void startPortal(uint scheme) {
        startBus();
        m_portal.scheme = scheme;
        auto bus = QDBusConnection::connectToBus(m_address, "portal");
        ASSERT_TRUE(bus.registerVirtualObject(kPath, &m_portal));
        ASSERT_TRUE(bus.registerService("org.freedesktop.portal.Desktop"));
    }
    void announce(const QString& group, const QString& key, uint scheme) {
        auto signal = QDBusMessage::createSignal(kPath, kInterface, "SettingChanged");
        signal << group << key << QVariant::fromValue(QDBusVariant(scheme));
        QDBusConnection("portal").send(signal);
    }
    void startProgram() {
        m_scheme =
            std::make_unique<ColorScheme>(QDBusConnection::connectToBus(m_address, "program"));
    }

    static bool becomes(bool dark) {
        return eventually([dark] {
            QCoreApplication::processEvents();
            return isDark(QGuiApplication::palette()) == dark;
        });
    }

    FakePortal m_portal;

private:
    QPalette m_before = QGuiApplication::palette();
    std::unique_ptr<ChildProcess> m_daemon;
    QString m_address;
    std::unique_ptr<ColorScheme> m_scheme;
};

} // namespace

TEST_F(ColorSchemeTest, a_desktop_that_prefers_dark_gets_light_text_on_dark_grounds) {
    startPortal(1);
    startProgram();
    EXPECT_TRUE(becomes(true));
    EXPECT_GT(QGuiApplication::palette().color(QPalette::WindowText).lightness(), 200);
}

TEST_F(ColorSchemeTest, it_follows_every_change) {
    startPortal(2);
    startProgram();
    EXPECT_TRUE(becomes(false));
    m_portal.scheme = 1;
    announce("org.freedesktop.appearance", "color-scheme", 1);
    EXPECT_TRUE(becomes(true));
    announce("org.freedesktop.appearance", "accent-color", 0);
    m_portal.scheme = 0;
    announce("org.freedesktop.appearance", "color-scheme", 0);
    EXPECT_TRUE(becomes(false));
}

TEST_F(ColorSchemeTest, without_a_portal_the_look_stays) {
    startBus();
    startProgram();
    EXPECT_TRUE(stays(
        [] {
            QCoreApplication::processEvents();
            return !isDark(QGuiApplication::palette());
        },
        std::chrono::milliseconds(150)));
}

TEST(ColorScheme, without_a_bus_the_look_stays) {
    const QPalette before = QGuiApplication::palette();
    const ColorScheme scheme(QDBusConnection("no such bus"));
    EXPECT_EQ(QGuiApplication::palette(), before);
}

} // namespace quillon::test
