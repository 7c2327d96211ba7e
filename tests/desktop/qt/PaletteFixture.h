#pragma once

#include "desktop/qt/toolbar/PaletteWidget.h"
#include "desktop/qt/toolbar/ToolbarButtonWidget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

namespace quillon::test {

/// A palette on the left one of two screens, 1600 by 900.
class PaletteTest : public testing::Test {
protected:
    enum Control { tool, color, width, whiteboard, undo, redo, clear };

    PaletteTest() {
        m_window.setGeometry(0, 0, 1600, 900);
        placeAt({800, 200});
        m_window.show();
        // The keys of the palette are those of the window that has the keyboard.
        m_window.activateWindow();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    void placeAt(QPointF center) { palette.place(center); }
    desktop::ToolbarButtonWidget& button(Control control) {
        return *palette.findChildren<desktop::ToolbarButtonWidget*>().at(control);
    }
    /// Tells of a change, as the settings would, and lets the widgets read the description anew.
    void settle() {
        view->objectWillChange.send();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    static QWidget* popup() { return QApplication::activePopupWidget(); }
    QWidget* openMenu(Control control) {
        QTest::mousePress(&button(control), Qt::LeftButton);
        QTest::mouseRelease(&button(control), Qt::LeftButton);
        return popup();
    }
    QWidget* openPopover() {
        QTest::mouseClick(&button(color), Qt::RightButton);
        settle();
        return popup();
    }
    /// A key for whatever has the keyboard in the popup, or for the popup itself.
    void type(Qt::Key key) {
        QWidget* at = popup()->focusWidget() ? popup()->focusWidget() : popup();
        QTest::keyClick(at, key);
        settle();
    }

    DrawingTool selectedTool = DrawingTool::pen;
    Color selectedColor = Color::cyan;
    CGFloat lineWidth = 4;
    std::vector<Color> quickColors = Color::quickSelectDefaults();
    bool isWhiteboardMode = false;
    std::vector<std::string> calls;
    std::shared_ptr<FloatingToolbarView> view = std::make_shared<FloatingToolbarView>(
        Binding<DrawingTool>::to(selectedTool), Binding<Color>::to(selectedColor),
        Binding<CGFloat>::to(lineWidth), Binding<std::vector<Color>>::to(quickColors),
        Binding<bool>::to(isWhiteboardMode), [this] { calls.emplace_back("clear"); },
        [this] { calls.emplace_back("undo"); }, [this] { calls.emplace_back("redo"); }, false,
        false);

private:
    QWidget m_window;

protected:
    desktop::PaletteWidget palette{view, m_window};
};

} // namespace quillon::test
