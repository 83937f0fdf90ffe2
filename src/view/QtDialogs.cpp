#include "QtDialogs.h"

#include <QColorDialog>
#include <QCursor>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QUrl>

#include "Twips.h"

namespace brelk::view {

namespace {
QString q(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

int QtDialogs::msgBox(const std::string& prompt, int style, const std::string& title) {
    QMessageBox box(parent_);
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
    const QString text = QInputDialog::getText(parent_, q(title), q(prompt), QLineEdit::Normal, q(defaultText), &ok);
    return ok ? text.toStdString() : std::string();
}

std::optional<OpenFileResult> QtDialogs::openFile(const OpenFileRequest& request) {
    // The pattern is the one filter: the folder opens showing the maps alone.
    const QString filter = QString("Map files (%1)").arg(q(request.pattern));
    const QString path = QFileDialog::getOpenFileName(parent_, q(request.title), q(request.initDir), filter);
    if (path.isEmpty()) return std::nullopt;
    return OpenFileResult{path.toStdString(), QFileInfo(path).fileName().toStdString()};
}

std::optional<std::int32_t> QtDialogs::chooseColor(std::int32_t start) {
    const QColor chosen = QColorDialog::getColor(toColor(start), parent_);
    if (!chosen.isValid()) return std::nullopt;
    return chosen.red() | (chosen.green() << 8) | (chosen.blue() << 16);
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
    FormView window(form, guard_);
    window.setWindowFlags(Qt::Dialog);
    window.setWindowModality(Qt::ApplicationModal);
    window.show();
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

void QtWindowSystem::shell(const std::string& command) {
    const QString text = QString::fromStdString(command).trimmed();
    const int space = text.indexOf(' ');
    const QString address = space > 0 ? text.mid(space + 1).trimmed() : text;
    if (address.contains("://")) QDesktopServices::openUrl(QUrl(address));
    else QProcess::startDetached(text);
}

}  // namespace brelk::view
