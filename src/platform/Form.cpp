#include "platform/Form.h"

#include <algorithm>

#include "platform/Errors.h"
#include "platform/TimerScheduler.h"

namespace brelk {

std::string_view eventName(Event e) {
    switch (e) {
    case Event::Load: return "Load";
    case Event::Unload: return "Unload";
    case Event::Click: return "Click";
    case Event::DblClick: return "DblClick";
    case Event::MouseDown: return "MouseDown";
    case Event::MouseUp: return "MouseUp";
    case Event::MouseMove: return "MouseMove";
    case Event::Timer: return "Timer";
    case Event::KeyDown: return "KeyDown";
    case Event::GotFocus: return "GotFocus";
    case Event::LostFocus: return "LostFocus";
    }
    return "";
}

Form::Form(std::string name, TimerScheduler& timers)
    : timers_(timers),
      self_(std::make_unique<Control>(*this, ControlKind::Form, std::move(name), std::nullopt, nullptr)) {}

Form::~Form() {
    for (auto& [name, array] : arrays_)
        for (auto& [index, c] : array.members)
            if (c->kind() == ControlKind::Timer) timers_.stop(*c);
}

Control& Form::insert(ControlKind kind, const std::string& name, std::optional<std::int16_t> index,
                      Control* container) {
    auto [it, fresh] = arrays_.try_emplace(name);
    if (fresh) order_.push_back(name);
    it->second.isArray = index.has_value();
    auto c = std::make_unique<Control>(*this, kind, name, index, container);
    c->setZ(++topZ_);
    Control& ref = *c;
    it->second.members[index.value_or(0)] = std::move(c);
    return ref;
}

Control& Form::add(ControlKind kind, const std::string& name, Control* container) {
    return insert(kind, name, std::nullopt, container);
}

Control& Form::addMember(ControlKind kind, const std::string& name, std::int16_t index,
                         Control* container) {
    return insert(kind, name, index, container);
}

Control* Form::find(const std::string& name, std::optional<std::int16_t> index) {
    auto it = arrays_.find(name);
    if (it == arrays_.end()) return nullptr;
    if (it->second.isArray != index.has_value()) return nullptr;
    auto m = it->second.members.find(index.value_or(0));
    return m == it->second.members.end() ? nullptr : m->second.get();
}

Control& Form::at(const std::string& name) {
    if (Control* c = find(name)) return *c;
    brelk::raise(err::ControlNotLoaded, "Control " + name + " does not exist");
}

Control& Form::at(const std::string& name, std::int16_t index) {
    if (Control* c = find(name, index)) return *c;
    brelk::raise(err::ControlNotLoaded,
          "Control array element " + name + "(" + std::to_string(index) + ") does not exist");
}

bool Form::isArray(const std::string& name) const {
    auto it = arrays_.find(name);
    return it != arrays_.end() && it->second.isArray;
}

bool Form::exists(const std::string& name) const { return arrays_.count(name) != 0; }

Control& Form::Load(const std::string& name, std::int16_t index) {
    auto it = arrays_.find(name);
    if (it == arrays_.end() || !it->second.isArray) brelk::raise(err::InvalidCall, name + " is not a control array");
    auto& members = it->second.members;
    if (members.count(index)) brelk::raise(err::AlreadyLoaded);
    auto proto = members.find(0);
    if (proto == members.end()) brelk::raise(err::ControlNotLoaded);
    auto c = std::make_unique<Control>(*this, proto->second->kind(), name, index,
                                       proto->second->container());
    c->copyDesign(*proto->second);
    c->setZ(++topZ_);
    Control& ref = *c;
    members[index] = std::move(c);
    if (ref.kind() == ControlKind::Timer && ref.enabled()) timerChanged(ref, Prop::Enabled, false);
    for (auto* o : observers_) o->controlLoaded(ref);
    return ref;
}

void Form::Unload(const std::string& name, std::int16_t index) {
    Control& c = at(name, index);
    if (index == 0) brelk::raise(err::InvalidCall, "Cannot unload the design-time member of " + name);
    for (auto* o : observers_) o->controlUnloading(c);
    if (c.kind() == ControlKind::Timer) timers_.stop(c);
    if (capture_ == &c) capture_ = nullptr;
    if (focus_ == &c) focus_ = nullptr;
    arrays_[name].members.erase(index);
}

std::vector<Control*> Form::controls() const {
    std::vector<Control*> out;
    for (const auto& name : order_)
        for (const auto& [index, c] : arrays_.at(name).members) out.push_back(c.get());
    return out;
}

void Form::on(const std::string& controlName, Event e, Handler h) {
    handlers_[{controlName, e}] = std::move(h);
}

bool Form::hasHandler(const std::string& controlName, Event e) const {
    return handlers_.count({controlName, e}) != 0;
}

void Form::raise(Control& c, Event e, EventArgs args) {
    auto it = handlers_.find({c.name(), e});
    if (it == handlers_.end()) return;
    args.index = c.index();
    // Copy: the handler may replace itself or unload its control.
    Handler h = it->second;
    try {
        h(args);
    } catch (const RuntimeError& error) {
        if (reporter_) reporter_(error);
    }
}

void Form::raiseForm(Event e, EventArgs args) { raise(*self_, e, args); }

void Form::mouseDown(Control& c, int button, int shift, float x, float y) {
    if (!capture_) capture_ = &c;
    captureButton_ |= button;
    raise(c, Event::MouseDown, {0, button, shift, x, y, 0});
}

void Form::mouseUp(Control& c, int button, int shift, float x, float y) {
    Control* target = capture_ ? capture_ : &c;
    captureButton_ &= ~button;
    if (captureButton_ == 0) capture_ = nullptr;
    raise(*target, Event::MouseUp, {0, button, shift, x, y, 0});
}

void Form::mouseMove(Control& c, int buttons, int shift, float x, float y) {
    raise(capture_ ? *capture_ : c, Event::MouseMove, {0, buttons, shift, x, y, 0});
}

void Form::click(Control& c) {
    if (c.has(Prop::Enabled) && !c.enabled()) return;
    if (c.kind() == ControlKind::OptionButton) {
        c.set(Prop::Value, Value(-1));  // raises Click when the value changes
        return;
    }
    raise(c, Event::Click);
}

void Form::dblClick(Control& c) { raise(c, Event::DblClick); }

void Form::setFocus(Control* c) {
    if (c == focus_) return;
    Control* old = focus_;
    focus_ = nullptr;
    if (old) raise(*old, Event::LostFocus);
    focus_ = c;
    for (auto* o : observers_) o->focusChanged(c);
    if (c) raise(*c, Event::GotFocus);
}

void Form::dropFocus() {
    focus_ = nullptr;
    for (auto* o : observers_) o->focusChanged(nullptr);
}

namespace {

// Shown on the form: the control and every box around it are visible.
bool isShown(const Control& c) {
    for (const Control* x = &c; x; x = x->container())
        if (x->has(Prop::Visible) && !x->visible()) return false;
    return true;
}

}  // namespace

bool Form::pressButton(Prop flag) {
    for (Control* c : controls())
        if (c->kind() == ControlKind::CommandButton && c->flag(flag) && c->enabled()) {
            if (isShown(*c)) setFocus(c);
            click(*c);
            return true;
        }
    return false;
}

bool Form::pressDefault() { return pressButton(Prop::Default); }

bool Form::pressCancel() { return pressButton(Prop::Cancel); }

void Form::Load() {
    loaded_ = true;
    raiseForm(Event::Load);
}

void Form::Unload() {
    if (!loaded_) return;
    raiseForm(Event::Unload);
    loaded_ = false;
    // Copied: an observer may stop observing as it learns of the end.
    const std::vector<FormObserver*> observers = observers_;
    for (auto* o : observers) o->formUnloaded();
}

void Form::addObserver(FormObserver* o) { observers_.push_back(o); }

void Form::removeObserver(FormObserver* o) {
    observers_.erase(std::remove(observers_.begin(), observers_.end(), o), observers_.end());
}

void Form::timerChanged(Control& timer, Prop p, bool wasOn) {
    const bool on = timer.enabled();
    const int interval = static_cast<int>(timer.number(Prop::Interval));
    if (p == Prop::Enabled) {
        if (on && !wasOn) timers_.start(timer, interval);
        else if (!on && wasOn) timers_.stop(timer);
    } else if (on) {
        timers_.start(timer, interval);  // a new interval starts a new period
    }
}

void Form::optionValueWritten(Control& option, bool changed) {
    if (!option.flag(Prop::Value)) return;
    for (Control* c : controls())
        if (c != &option && c->kind() == ControlKind::OptionButton && c->container() == option.container() &&
            c->flag(Prop::Value))
            c->set(Prop::Value, Value(0));
    if (changed) raise(option, Event::Click);
}

void Form::notifyChanged(Control& c, Prop p) {
    for (auto* o : observers_) o->propertyChanged(c, p);
}

void Form::reorder(Control& c, bool toFront) {
    c.setZ(toFront ? ++topZ_ : --bottomZ_);
    for (auto* o : observers_) o->zOrderChanged(c);
}

}  // namespace brelk
