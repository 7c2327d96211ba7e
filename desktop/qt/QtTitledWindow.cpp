#include "desktop/qt/QtTitledWindow.h"

#include "desktop/qt/GlobalCoordinates.h"
#include "desktop/qt/PlainMenuBar.h"
#include "desktop/qt/QtImages.h"
#include "desktop/qt/QtMenu.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <malloc.h>

#include <algorithm>
#include <utility>

namespace quillon::desktop {

namespace {

constexpr int kHeaderMargin = 4;
constexpr QSize kToolIcon(16, 16);

/// The icon that the program was installed with, or the glyph that it has in the tray.
QIcon programIcon() {
    const Image glyph{Image::Kind::symbol, "pencil.and.outline", {}, {}};
    return QIcon::fromTheme(QStringLiteral("quillon-mark"),
                            QtImages::icon(glyph, SymbolTint::panel));
}

/// A window that is higher than its screen sticks out at the bottom, not with its title.
QRect withTitleInReach(QRect frame) {
    const QScreen* under = QGuiApplication::screenAt(frame.center());
    if (const QScreen* screen = under ? under : QGuiApplication::primaryScreen()) {
        frame.moveTop(std::max(frame.top(), screen->availableGeometry().top()));
    }
    return frame;
}

/// What a window of controls held lies scattered over the heap, the picture of it among the rest.
/// The program runs on without a window for hours, and the allocator would keep it all.
void giveMemoryBack() {
    malloc_trim(0);
}

Qt::WindowFlags flagsOf(const Window& window) {
    Qt::WindowFlags flags =
        Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    if (contains(window.styleMask(), WindowStyleMask::closable)) {
        flags |= Qt::WindowCloseButtonHint;
    }
    if (contains(window.styleMask(), WindowStyleMask::miniaturizable)) {
        flags |= Qt::WindowMinimizeButtonHint;
    }
    if (window.level() >= NSFloatingWindowLevel) {
        flags |= Qt::WindowStaysOnTopHint;
    }
    return flags;
}

} // namespace

/// The window on the screen. It keeps its content alive to its own end.
class QtTitledWindow::Widget : public QWidget {
public:
    explicit Widget(Window& window)
        : m_window(window) {
        for (const QScreen* screen : QGuiApplication::screens()) {
            connect(screen, &QScreen::logicalDotsPerInchChanged, this, &Widget::followScale,
                    Qt::QueuedConnection);
        }
    }
    ~Widget() override {
        // The controls refer to the content.
        qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
        QTimer::singleShot(0, giveMemoryBack);
    }

    bool isClosing() const { return m_isClosing; }

    std::shared_ptr<HostingController> content;

protected:
    void closeEvent(QCloseEvent* event) override {
        event->accept();
        m_isClosing = true;
        // The window may be gone when the call returns, but not this, which it leaves to a later
        // turn.
        m_window.close();
        m_isClosing = false;
    }

private:
    /// Of a window that changes its scale the toolkit keeps the pixels, in which its content has no
    /// room any more. Another one is made with as many as it needs, in the middle, since the old
    /// place may lie beyond the screen.
    void followScale() {
        if (isVisible() && std::exchange(m_scale, devicePixelRatio()) != devicePixelRatio()) {
            hide();
            destroy();
            m_window.center();
            show();
        }
    }

    Window& m_window;
    bool m_isClosing = false;
    qreal m_scale = devicePixelRatio();
};

QtTitledWindow::QtTitledWindow(Window& window, Application& application,
                               const ControlsLayout& layOut)
    : m_window(window)
    , m_application(application)
    , m_layOut(layOut)
    , m_widget(std::make_unique<Widget>(window)) {
    auto* column = new QVBoxLayout(m_widget.get());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
}

QtTitledWindow::~QtTitledWindow() {
    m_widget->hide();
    if (m_widget->isClosing()) {
        m_widget.release()->deleteLater();
    }
}

void QtTitledWindow::setFrame(const CGRect& frame) {
    const QScreen* primary = QGuiApplication::primaryScreen();
    const QRectF primaryGeometry = primary ? primary->geometry() : QRectF();
    const QRect content = desktopFromGlobal(frame, primaryGeometry).toAlignedRect();
    const QRect whole = withTitleInReach(content.adjusted(0, -m_headerHeight, 0, 0));
    if (contains(m_window.styleMask(), WindowStyleMask::resizable)) {
        m_widget->resize(whole.size());
    } else {
        m_widget->setFixedSize(whole.size());
    }
    m_widget->move(whole.topLeft());
}

void QtTitledWindow::display() {
    m_widget->update();
}

void QtTitledWindow::setContentViewController(
    const std::shared_ptr<HostingController>& controller) {
    m_widget->content = controller;
    auto content = m_layOut(*controller->rootView);
    QWidget* header = makeHeader(*content);
    m_headerHeight = header->sizeHint().height();
    header->setFixedHeight(m_headerHeight);
    m_widget->layout()->addWidget(header);
    m_widget->layout()->addWidget(content.release());
    setFrame(m_window.frame());
}

void QtTitledWindow::orderFrontRegardless() {
    prepare();
    m_widget->setAttribute(Qt::WA_ShowWithoutActivating);
    m_widget->show();
    m_widget->raise();
}

void QtTitledWindow::makeKeyAndOrderFront() {
    prepare();
    m_widget->setAttribute(Qt::WA_ShowWithoutActivating, false);
    if (m_widget->isMinimized()) {
        m_widget->showNormal();
    } else {
        m_widget->show();
    }
    m_widget->raise();
    m_widget->activateWindow();
}

void QtTitledWindow::orderOut() {
    m_widget->hide();
}

void QtTitledWindow::prepare() {
    if (m_isPrepared) {
        return;
    }
    m_isPrepared = true;
    m_widget->setWindowFlags(flagsOf(m_window));
    m_widget->setWindowTitle(QString::fromStdString(m_window.title()));
    m_widget->setWindowIcon(programIcon());
}

QWidget* QtTitledWindow::makeHeader(const QWidget& content) {
    auto* header = new QWidget;
    auto* line = new QHBoxLayout(header);
    line->setContentsMargins(kHeaderMargin, 0, kHeaderMargin, 0);
    line->setSpacing(0);

    auto* menuBar = new PlainMenuBar;
    auto* menu = new QtMenu(m_application.mainMenu(), m_application);
    menu->setParent(menuBar, menu->windowFlags());
    menuBar->addMenu(menu);
    auto* menuKey = new QShortcut(Qt::Key_F10, header);
    QObject::connect(menuKey, &QShortcut::activated, menuBar,
                     [menuBar, menu] { menuBar->setActiveAction(menu->menuAction()); });
    line->addWidget(menuBar, 1, Qt::AlignVCenter);

    auto* toolBar = new QToolBar;
    toolBar->setIconSize(kToolIcon);
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    toolBar->addActions(content.actions());
    for (QAction* action : content.actions()) {
        toolBar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    }
    line->addWidget(toolBar, 0, Qt::AlignVCenter);
    return header;
}

} // namespace quillon::desktop
