#pragma once

#include "desktop/qt/settings/SettingsWidget.h"

#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>

#include <memory>

namespace quillon::test {

/// The settings on a host of fakes, laid out in the size that the window gives them.
struct SettingsLaidOut : testing::Test {
    SettingsLaidOut() {
        widget = std::make_unique<desktop::SettingsWidget>(
            view, [this](const QKeyEvent&) { return key; });
        widget->resize(600, 500);
        widget->show();
        turn();
    }

    /// Lets what is pending run.
    static void turn() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    void show(SettingsTab tab) {
        control<QAbstractButton>(
            QString::fromUtf8(rawValue(tab).data(), static_cast<qsizetype>(rawValue(tab).size())))
            ->click();
        turn();
    }
    /// The control of that accessible name and, if one is given, description.
    template <typename Control>
    Control* control(const QString& name, const QString& description = {}) {
        for (auto* candidate : widget->findChildren<Control*>()) {
            if (candidate->accessibleName() == name &&
                (description.isEmpty() || candidate->accessibleDescription() == description)) {
                return candidate;
            }
        }
        ADD_FAILURE() << "there is no " << name.toStdString();
        return nullptr;
    }
    AppSettings& settings() { return AppSettings::shared(); }

    FakeHost host;
    SettingsView view;
    /// What a key that is pressed is read as.
    std::optional<KeyEvent> key;
    std::unique_ptr<desktop::SettingsWidget> widget;
};

} // namespace quillon::test
