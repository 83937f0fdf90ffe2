#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Control.h"
#include "platform/Events.h"

namespace brelk {

class TimerScheduler;
class RuntimeError;

// Told of every change of a form's controls, so that a view can follow.
class FormObserver {
public:
    virtual ~FormObserver() = default;
    virtual void controlLoaded(Control&) {}
    virtual void controlUnloading(Control&) {}
    virtual void propertyChanged(Control&, Prop) {}
    virtual void zOrderChanged(Control&) {}
    virtual void focusChanged(Control* /*now*/) {}
    // The form itself was unloaded: its window goes, a modal wait ends.
    virtual void formUnloaded() {}
};

// A form: its own properties, its named controls and control arrays, the
// handlers of their events, and the platform's input rules (the release of a
// mouse button goes to the control that got the press; focus moves with
// GotFocus/LostFocus).
class Form {
public:
    Form(std::string name, TimerScheduler& timers);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return self_->name(); }
    // The form's own properties (Left, Top, Width, Height, Caption, BackColor, Visible).
    Control& self() { return *self_; }
    const Control& self() const { return *self_; }

    // Design-time creation of a single control, or of member `index` of an array.
    Control& add(ControlKind kind, const std::string& name, Control* container = nullptr);
    Control& addMember(ControlKind kind, const std::string& name, std::int16_t index,
                       Control* container = nullptr);

    // Member access; a member that is not loaded raises error 340, a single
    // control asked for by index (or the reverse) too.
    Control& at(const std::string& name);
    Control& at(const std::string& name, std::int16_t index);
    Control* find(const std::string& name, std::optional<std::int16_t> index = std::nullopt);
    bool isArray(const std::string& name) const;
    bool exists(const std::string& name) const;

    // Load creates member `index` from member 0, hidden; Unload removes it and
    // stops it if it is a running timer. Loading a loaded member raises 360.
    Control& Load(const std::string& name, std::int16_t index);
    void Unload(const std::string& name, std::int16_t index);

    // All controls in creation order (member order within arrays).
    std::vector<Control*> controls() const;

    // Event handlers, one per control name and event.
    void on(const std::string& controlName, Event e, Handler h);
    bool hasHandler(const std::string& controlName, Event e) const;
    // Runs the handler, if any. A run-time error that no procedure caught ends
    // here: it is reported and the program goes on.
    void raise(Control& c, Event e, EventArgs args = {});
    void raiseForm(Event e, EventArgs args = {});

    // Input as the platform delivers it.
    void mouseDown(Control& c, int button, int shift = 0, float x = 0, float y = 0);
    // Goes to the control that got the matching press, wherever the pointer is.
    void mouseUp(Control& c, int button, int shift = 0, float x = 0, float y = 0);
    void mouseMove(Control& c, int buttons, int shift = 0, float x = 0, float y = 0);
    void click(Control& c);
    void dblClick(Control& c);
    void setFocus(Control* c);
    Control* focus() const { return focus_; }
    // Nothing has the focus any more, and no event tells of it.
    void dropFocus();
    // Enter and Esc press the Default and Cancel buttons. A button that is
    // shown takes the focus first, as a click gives it, so that a text box
    // being edited gives up its text before the button acts.
    bool pressDefault();
    bool pressCancel();

    // The form itself: Load runs its Load event; Unload runs its Unload
    // event, then closes it, which every observer learns. A form is loaded
    // from its Load until its Unload.
    void Load();
    void Unload();
    bool isLoaded() const { return loaded_; }

    void addObserver(FormObserver* o);
    void removeObserver(FormObserver* o);

    // Where uncaught run-time errors are reported (a message box in the program).
    void setErrorReporter(std::function<void(const RuntimeError&)> r) { reporter_ = std::move(r); }

    TimerScheduler& timers() { return timers_; }

    // The form's own scale: how many twips one of its units measures across
    // and down. A control placed in these units (Control::placeInFormUnits)
    // reads back the whole units the program writes, where twips would need
    // fractions; the view turns them into twips as it draws.
    struct Scale {
        double x = 1;
        double y = 1;
    };
    void setScale(Scale s) { scale_ = s; }
    Scale scale() const { return scale_; }

    // Hooks for Control.
    void timerChanged(Control& timer, Prop p, bool wasOn);
    void optionValueWritten(Control& option, bool changed);
    void notifyChanged(Control& c, Prop p);
    void reorder(Control& c, bool toFront);

private:
    struct Array {
        bool isArray = false;
        std::map<std::int16_t, std::unique_ptr<Control>> members;
    };
    Control& insert(ControlKind kind, const std::string& name, std::optional<std::int16_t> index,
                    Control* container);
    bool pressButton(Prop flag);

    TimerScheduler& timers_;
    std::unique_ptr<Control> self_;
    std::map<std::string, Array> arrays_;
    std::vector<std::string> order_;  // names in creation order
    std::map<std::pair<std::string, Event>, Handler> handlers_;
    std::vector<FormObserver*> observers_;
    std::function<void(const RuntimeError&)> reporter_;
    Control* capture_ = nullptr;
    int captureButton_ = 0;
    Control* focus_ = nullptr;
    bool loaded_ = false;
    Scale scale_;
    int topZ_ = 0;
    int bottomZ_ = 0;
};

}  // namespace brelk
