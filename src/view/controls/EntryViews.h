#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include "view/controls/ControlView.h"

namespace brelk::view {

// The entry fields of the options window. Each writes what the user does
// into its control (Text, Value, ListIndex) and shows what the control holds.

class TextBoxView : public QLineEdit, public ControlView {
public:
    TextBoxView(Control& control, const ViewContext& context, QWidget* parent);
    QWidget* widget() override { return this; }

protected:
    void apply(Prop p) override;
    void focusInEvent(QFocusEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
};

// An option button. The buttons of one box are one group, as in any
// dialog: Tab stops at the chosen one only, and the arrow keys choose the
// next or the previous one of the box.
class OptionView : public QRadioButton, public ControlView {
public:
    OptionView(Control& control, const ViewContext& context, QWidget* parent);
    QWidget* widget() override { return this; }

protected:
    void apply(Prop p) override;
    void focusInEvent(QFocusEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
};

class ComboView : public QComboBox, public ControlView {
public:
    ComboView(Control& control, const ViewContext& context, QWidget* parent);
    QWidget* widget() override { return this; }

protected:
    void apply(Prop p) override;
    void focusInEvent(QFocusEvent* e) override;
};

}  // namespace brelk::view
