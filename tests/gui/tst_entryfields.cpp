#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

#include "FormView.h"
#include "GuiTestRegistry.h"
#include "platform/Form.h"
#include "platform/TimerScheduler.h"

using namespace brelk;

// The entry fields an options window is made of, on a small form of their
// own: a text box, a pair of option buttons in a box, a drop-down list, and
// the Default and Cancel buttons. Each widget writes what the user does into
// its control and shows what the control holds.
class EntryFieldsTest : public QObject {
    Q_OBJECT

    TimerScheduler clock_;
    std::unique_ptr<Form> form_;
    std::unique_ptr<view::FormView> view_;
    std::vector<std::string> events_;

    template <typename W>
    W* widget(const char* name) {
        return view_->findChild<W*>(name);
    }
    Control& at(const char* name) { return form_->at(name); }
    void record(const char* control, Event e) {
        form_->on(control, e, [this, control, e](const EventArgs& a) {
            events_.push_back(std::string(control) + " " + std::string(eventName(e)) +
                              (e == Event::KeyDown ? " " + std::to_string(a.keyCode) : ""));
        });
    }
    // Adds a control at a place of the form, given in twips.
    Control& put(ControlKind kind, const char* name, double left, double top, Control* box = nullptr) {
        Control& c = form_->add(kind, name, box);
        c.setNumber(Prop::Left, left);
        c.setNumber(Prop::Top, top);
        c.setNumber(Prop::Width, 1000);
        c.setNumber(Prop::Height, 315);
        return c;
    }

private slots:
    void init() {
        events_.clear();
        form_ = std::make_unique<Form>("frmOptions", clock_);
        form_->self().setNumber(Prop::Width, 4500);
        form_->self().setNumber(Prop::Height, 3000);
        put(ControlKind::TextBox, "txtLastSeconds", 120, 120).setText("5");
        Control& box = put(ControlKind::PictureBox, "picOpt", 120, 600);
        box.setNumber(Prop::Width, 2400);
        put(ControlKind::OptionButton, "optYes", 0, 0, &box).setCaption("Yes");
        put(ControlKind::OptionButton, "optNo", 1200, 0, &box).setCaption("No");
        at("optYes").set(Prop::Value, -1);
        Control& list = put(ControlKind::ComboBox, "lstIniFiles", 120, 1200);
        for (const char* set : {"Dark", "Light", "Tourney"}) list.AddItem(set);
        put(ControlKind::CommandButton, "cmdOK", 120, 2000).setFlag(Prop::Default, true);
        put(ControlKind::CommandButton, "cmdCancel", 1300, 2000).setFlag(Prop::Cancel, true);
        for (const char* c : {"optYes", "optNo", "lstIniFiles", "cmdOK", "cmdCancel"}) record(c, Event::Click);
        record("txtLastSeconds", Event::KeyDown);
        view_ = std::make_unique<view::FormView>(*form_, view::Guard{});
        view_->show();
        QVERIFY(QTest::qWaitForWindowExposed(view_.get()));
        view_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(view_.get()));
    }

    void cleanup() {
        view_.reset();
        form_.reset();
    }

    void theTextBoxWritesItsTextAndReportsKeys() {
        auto* edit = widget<QLineEdit>("txtLastSeconds");
        QVERIFY(edit);
        QCOMPARE(edit->text(), QString("5"));
        edit->setFocus();
        QCOMPARE(form_->focus(), &at("txtLastSeconds"));
        QTest::keyClick(edit, Qt::Key_End);
        QTest::keyClick(edit, Qt::Key_7);
        QCOMPARE(at("txtLastSeconds").text(), std::string("57"));
        QCOMPARE(events_, (std::vector<std::string>{"txtLastSeconds KeyDown 35", "txtLastSeconds KeyDown 55"}));
        // The program's writes show, the caret included.
        at("txtLastSeconds").setText("10");
        at("txtLastSeconds").setNumber(Prop::SelStart, 1);
        QCOMPARE(edit->text(), QString("10"));
        QCOMPARE(edit->cursorPosition(), 1);
        // Enter presses the Default button, Esc the Cancel button.
        events_.clear();
        QTest::keyClick(edit, Qt::Key_Return);
        QTest::keyClick(edit, Qt::Key_Escape);
        QCOMPARE(events_, (std::vector<std::string>{"txtLastSeconds KeyDown 13", "cmdOK Click",
                                                    "txtLastSeconds KeyDown 27", "cmdCancel Click"}));
    }

    void optionButtonsOfABoxClearEachOther() {
        auto* yes = widget<QRadioButton>("optYes");
        auto* no = widget<QRadioButton>("optNo");
        QVERIFY(yes && no);
        QVERIFY(yes->isChecked() && !no->isChecked());
        QVERIFY(widget<QWidget>("picOpt")->isAncestorOf(no));
        QTest::mouseClick(no, Qt::LeftButton);
        QVERIFY(at("optNo").flag(Prop::Value) && !at("optYes").flag(Prop::Value));
        QVERIFY(no->isChecked() && !yes->isChecked());
        QTest::mouseClick(no, Qt::LeftButton);  // no change, no Click
        QCOMPARE(events_, std::vector<std::string>{"optNo Click"});
        // The program's write shows; hiding the box hides the pair.
        at("optYes").set(Prop::Value, -1);
        QVERIFY(yes->isChecked() && !no->isChecked());
        at("picOpt").setVisible(false);
        QVERIFY(!yes->isVisible() && !no->isVisible());
    }

    void theDropDownListFollowsItsEntriesAndReportsAChoice() {
        auto* list = widget<QComboBox>("lstIniFiles");
        QVERIFY(list);
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->currentIndex(), -1);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(at("lstIniFiles").number(Prop::ListIndex), 0.0);
        QCOMPARE(events_, std::vector<std::string>{"lstIniFiles Click"});
        at("lstIniFiles").AddItem("Wide");
        at("lstIniFiles").RemoveItem(0);
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->itemText(2), QString("Wide"));
        QCOMPARE(list->currentIndex(), -1);  // the chosen entry went
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new EntryFieldsTest; });

#include "tst_entryfields.moc"
