#include "view/controls/EntryViews.h"

#include <algorithm>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QSignalBlocker>

#include "platform/Events.h"
#include "platform/Form.h"
#include "view/controls/InputCodes.h"
#include "view/drawing/Twips.h"

namespace brelk::view {

namespace {

void tellFocus(const ViewContext& context, Control* c) {
    if (c) context.run([&] { c->form().setFocus(c); });
}

void applyColours(QWidget& w, const Control& c, QPalette::ColorRole back, QPalette::ColorRole fore) {
    QPalette palette = w.palette();
    if (c.has(Prop::BackColor)) palette.setColor(back, toColor(c.number(Prop::BackColor)));
    if (c.has(Prop::ForeColor)) palette.setColor(fore, toColor(c.number(Prop::ForeColor)));
    w.setPalette(palette);
}

}  // namespace

TextBoxView::TextBoxView(Control& control, const ViewContext& context, QWidget* parent)
    : QLineEdit(parent), ControlView(control, context) {
    setAttribute(Qt::WA_NoMousePropagation);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (Control* c = control_) context_.run([&] { c->setText(text.toStdString()); });
    });
}

void TextBoxView::apply(Prop p) {
    switch (p) {
    case Prop::Text: {
        const QString text = QString::fromStdString(control_->text());
        if (text != this->text()) setText(text);
        break;
    }
    case Prop::SelStart: {
        // A caret beyond the text stands at its end.
        const double at = std::clamp(control_->number(Prop::SelStart), 0.0, static_cast<double>(text().size()));
        setCursorPosition(static_cast<int>(at));
        break;
    }
    case Prop::Alignment: {
        const int a = static_cast<int>(control_->number(Prop::Alignment));
        setAlignment((a == align::Right ? Qt::AlignRight : a == align::Center ? Qt::AlignHCenter : Qt::AlignLeft) |
                     Qt::AlignVCenter);
        break;
    }
    case Prop::BackColor:
    case Prop::ForeColor: applyColours(*this, *control_, QPalette::Base, QPalette::Text); break;
    default: break;
    }
}

void TextBoxView::focusInEvent(QFocusEvent* e) {
    QLineEdit::focusInEvent(e);
    tellFocus(context_, control_);
}

void TextBoxView::keyPressEvent(QKeyEvent* e) {
    if (Control* c = control_) {
        EventArgs args;
        args.keyCode = keyCode(*e);
        args.shift = shiftState(e->modifiers());
        context_.run([&] { c->form().raise(*c, Event::KeyDown, args); });
    }
    QLineEdit::keyPressEvent(e);
}

OptionView::OptionView(Control& control, const ViewContext& context, QWidget* parent)
    : QRadioButton(parent), ControlView(control, context) {
    setAttribute(Qt::WA_NoMousePropagation);
    // The form clears the other button of the pair; the widgets only follow.
    setAutoExclusive(false);
    connect(this, &QRadioButton::clicked, this, [this] {
        if (Control* c = control_) context_.run([&] { c->form().click(*c); });
        if (control_) setChecked(control_->flag(Prop::Value));
    });
}

void OptionView::apply(Prop p) {
    switch (p) {
    case Prop::Caption: setText(QString::fromStdString(control_->caption())); break;
    case Prop::Value: setChecked(control_->flag(Prop::Value)); break;
    case Prop::BackColor:
    case Prop::ForeColor: applyColours(*this, *control_, QPalette::Window, QPalette::WindowText); break;
    default: break;
    }
}

void OptionView::focusInEvent(QFocusEvent* e) {
    // Reached by Tab but not chosen: the focus goes on past this button.
    if (!isChecked() && (e->reason() == Qt::TabFocusReason || e->reason() == Qt::BacktabFocusReason)) {
        focusNextPrevChild(e->reason() == Qt::TabFocusReason);
        return;
    }
    QRadioButton::focusInEvent(e);
    tellFocus(context_, control_);
}

void OptionView::keyPressEvent(QKeyEvent* e) {
    const int key = e->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down && key != Qt::Key_Left && key != Qt::Key_Right)
        return QRadioButton::keyPressEvent(e);
    // The buttons of this box in their order; the arrow chooses the neighbour.
    QList<OptionView*> group;
    for (QObject* o : parentWidget()->children())
        if (auto* option = dynamic_cast<OptionView*>(o); option && option->isVisible() && option->isEnabled())
            group.append(option);
    const qsizetype here = group.indexOf(this);
    if (group.size() < 2 || here < 0) return;
    const qsizetype step = key == Qt::Key_Up || key == Qt::Key_Left ? -1 : 1;
    OptionView* next = group[(here + step + group.size()) % group.size()];
    next->setFocus(Qt::OtherFocusReason);
    if (Control* c = next->control()) context_.run([&] { c->form().click(*c); });
}

ComboView::ComboView(Control& control, const ViewContext& context, QWidget* parent)
    : QComboBox(parent), ControlView(control, context) {
    setAttribute(Qt::WA_NoMousePropagation);
    setEditable(false);
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (Control* c = control_)
            context_.run([&] {
                c->setNumber(Prop::ListIndex, index);
                c->form().click(*c);
            });
    });
}

void ComboView::apply(Prop p) {
    if (p != Prop::ListCount && p != Prop::ListIndex) return;
    const QSignalBlocker quiet(this);
    const auto& items = control_->listItems();
    if (p == Prop::ListCount || count() != static_cast<int>(items.size())) {
        clear();
        for (const std::string& item : items) addItem(QString::fromStdString(item));
    }
    setCurrentIndex(static_cast<int>(control_->number(Prop::ListIndex)));
}

void ComboView::focusInEvent(QFocusEvent* e) {
    QComboBox::focusInEvent(e);
    tellFocus(context_, control_);
}

}  // namespace brelk::view
