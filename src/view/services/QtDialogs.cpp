#include "view/services/QtDialogs.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QColorDialog>
#include <QCursor>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>
#include <QUrl>

#include "view/drawing/Twips.h"

namespace brelk::view {

namespace {
QString q(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

class QtDialogs::Over {
public:
    explicit Over(QWidget* mainWindow) : window_(QApplication::activeModalWidget()) {
        if (!window_) window_ = mainWindow;
    }
    ~Over() {
        if (window_ && window_->isVisible()) window_->activateWindow();
    }
    QWidget* window() const { return window_; }

private:
    QPointer<QWidget> window_;
};

int QtDialogs::msgBox(const std::string& prompt, int style, const std::string& title) {
    const Over over(parent_);
    QMessageBox box(over.window());
    box.setWindowTitle(q(title));
    // Plain text: a map line quoted in a message is shown as it is.
    box.setTextFormat(Qt::PlainText);
    box.setText(q(prompt).replace("\r\n", "\n").replace('\r', '\n'));
    const int icon = style & msgbox::IconMask;
    box.setIcon(icon == msgbox::Critical ? QMessageBox::Critical
                : icon == msgbox::Exclamation ? QMessageBox::Warning
                                              : QMessageBox::NoIcon);
    switch (style & msgbox::ButtonsMask) {
    case msgbox::OkCancel:
        box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        box.setDefaultButton(QMessageBox::Ok);
        break;
    case msgbox::YesNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        break;
    default: box.setStandardButtons(QMessageBox::Ok);
    }
    switch (box.exec()) {
    case QMessageBox::Cancel: return msgbox::Cancel;
    case QMessageBox::Yes: return msgbox::Yes;
    case QMessageBox::No: return msgbox::No;
    case QMessageBox::Ok: return msgbox::Ok;
    default: return (style & msgbox::ButtonsMask) == msgbox::YesNo ? msgbox::No : msgbox::Cancel;
    }
}

std::string QtDialogs::inputBox(const std::string& prompt, const std::string& title, const std::string& defaultText) {
    bool ok = false;
    const Over over(parent_);
    const QString text = QInputDialog::getText(over.window(), q(title), q(prompt), QLineEdit::Normal, q(defaultText), &ok);
    return ok ? text.toStdString() : std::string();
}

std::optional<OpenFileResult> QtDialogs::openFile(const OpenFileRequest& request) {
    // The pattern is the one filter: the folder opens showing the maps alone.
    const QString filter = QString("Map files (%1)").arg(q(request.pattern));
    const QString path = QFileDialog::getOpenFileName(parent_, q(request.title), q(request.initDir), filter);
    if (path.isEmpty()) return std::nullopt;
    return OpenFileResult{path.toStdString(), QFileInfo(path).fileName().toStdString()};
}


std::optional<std::int32_t> QtDialogs::showColor(const ColorRequest& request) {
    const Over over(parent_);
    const QColor chosen = QColorDialog::getColor(toColor(request.start), over.window(), q(request.title));
    if (!chosen.isValid()) return std::nullopt;
    return chosen.red() | (chosen.green() << 8) | (chosen.blue() << 16);
}

void QtDialogs::centreOnOwner(FormView& window) {
    if (!parent_) return;
    // On the owner's middle, kept whole on the owner's screen where it fits.
    const QRect owner = parent_->frameGeometry();
    QPoint place = owner.center() - QPoint(window.width() / 2, window.height() / 2);
    if (const QScreen* screen = parent_->screen()) {
        const QRect room = screen->availableGeometry();
        place.setX(std::max(room.left(), std::min(place.x(), room.right() + 1 - window.width())));
        place.setY(std::max(room.top(), std::min(place.y(), room.bottom() + 1 - window.height())));
    }
    // The form keeps where its window stands.
    Form& form = window.form();
    guard_([&] {
        form.self().setNumber(Prop::Left, toTwips(place.x(), window.zoom()));
        form.self().setNumber(Prop::Top, toTwips(place.y(), window.zoom()));
    });
}

void QtDialogs::addMenuExtension(std::string after, std::function<void(QMenu&)> add) {
    extensions_.emplace_back(std::move(after), std::move(add));
}

Control* QtDialogs::popupMenu(Form& form, Control& menu) {
    QMenu popup(parent_);
    std::vector<std::pair<QAction*, Control*>> entries;
    for (Control* c : form.controls()) {
        if (c->kind() != ControlKind::Menu || c->container() != &menu || !c->visible()) continue;
        if (c->caption() == "-") {
            popup.addSeparator();
            continue;
        }
        // "&" marks an entry's key, as in every menu.
        QAction* action = popup.addAction(QString::fromStdString(c->caption()));
        action->setEnabled(c->enabled());
        entries.emplace_back(action, c);
        for (const auto& [after, add] : extensions_)
            if (after == c->name()) add(popup);
    }
    QAction* chosen = popup.exec(QCursor::pos());
    for (const auto& [action, control] : entries)
        if (action == chosen) return control;
    return nullptr;
}

void QtDialogs::showModal(Form& form) {
    if (!form.isLoaded()) return;
    // A form without a control box draws its own frame, as the main window
    // does: no window system then adds a close, minimise or maximise box, and
    // the form's Width and Height are the window's outer size. A fixed tool
    // window has the same thin frame without the icon.
    const bool tool = form.self().number(Prop::BorderStyle) == border::FixedToolWindow;
    const bool ownFrame = tool || !form.self().flag(Prop::ControlBox);
    FormView window(form, guard_,
                    tool ? WindowFrame::toolWindow() : ownFrame ? WindowFrame::mainWindow() : WindowFrame{});
    window.setWindowFlags(tool ? Qt::Tool | Qt::FramelessWindowHint
                               : ownFrame ? Qt::Dialog | Qt::FramelessWindowHint : Qt::Dialog);
    window.setWindowModality(Qt::ApplicationModal);
    // Drawn at the zoom of the main window, so it stands against it as designed.
    if (const auto* owner = qobject_cast<const FormView*>(parent_.data())) window.setZoom(owner->zoom());
    if (form.self().number(Prop::StartUpPosition) == startup::CenterOwner) centreOnOwner(window);
    window.show();
    window.activateWindow();
    // The wait ends when the form unloads itself, or when the window system
    // closes a window that has no way of its own to end.
    QEventLoop loop;
    QObject::connect(&window, &FormView::unloaded, &loop, &QEventLoop::quit);
    QObject::connect(&window, &FormView::closedByUser, &loop, &QEventLoop::quit);
    loop.exec();
}

void QtWindowSystem::setTopmost(Form&, bool topmost) {
    topmost_ = topmost;
    if (!window_) return;
    if (window_->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == topmost) return;
    const bool shown = window_->isVisible();
    const QPoint place = window_->pos();
    window_->setWindowFlag(Qt::WindowStaysOnTopHint, topmost);
    // Changing the flags hides a window; show it again where it was.
    if (shown) {
        window_->move(place);
        window_->show();
        window_->raise();
    }
}

int QtWindowSystem::screenWidth() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const auto* view = qobject_cast<const FormView*>(window_.data());
    const double zoom = view ? view->zoom() : 1.0;
    return screen ? static_cast<int>(std::lround(toTwips(screen->geometry().width(), zoom))) : 19200;
}

bool QtWindowSystem::openUrl(const std::string& address) {
    const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
    return url.isValid() && QDesktopServices::openUrl(url);
}

}  // namespace brelk::view
