#include "ScenarioRunner.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <map>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <vector>

#include "ScenarioLexer.h"
#include "ScriptedProgram.h"
#include "map/IconCatalogue.h"
#include "map/Layout.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Numbers.h"

namespace brelk::scenario {

using doubles::Answer;
using doubles::ScriptedDialogs;

namespace {

// A line that cannot be run.
struct LineError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::string show(const Value& v) { return v.isText() ? quote(v.text()) : num::plainText(v.number()); }

// Lines ended by CR LF, a lone CR or a lone LF.
std::vector<std::string> splitLines(const std::string& bytes) {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < bytes.size();) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n", start), bytes.size());
        lines.push_back(bytes.substr(start, end - start));
        start = end + (bytes.compare(end, 2, "\r\n") == 0 ? 2 : 1);
    }
    return lines;
}

class Run {
public:
    Run(std::string file, std::ostream& out) : file_(std::move(file)), out_(out) {
        if (!world_.tmp.isValid()) throw std::runtime_error("cannot make a temporary directory");
        // A modal form takes the following commands until it is unloaded;
        // then the action that opened it goes on.
        dialogs_.whileModal = [this](Form& form) {
            const std::size_t opener = lineNo_;
            runLines([&] { return form.isLoaded() && !program_.ended(); });
            lineNo_ = opener;
            if (program_.ended()) throw ProgramEnded{};
        };
    }

    Tally execute() {
        std::ifstream in(file_, std::ios::binary);
        if (!in) {
            out_ << file_ << ": cannot read the file\n";
            ++tally_.broken;
            return tally_;
        }
        for (std::string l; std::getline(in, l);) {
            if (!l.empty() && l.back() == '\r') l.pop_back();
            lines_.push_back(l);
        }
        runLines([] { return true; });
        out_ << file_ << ": " << tally_.passed << " passed, " << tally_.failed + tally_.broken << " failed\n";
        return tally_;
    }

private:
    // Runs the lines from the next one on, while `going` holds.
    void runLines(const std::function<bool()>& going) {
        while (next_ < lines_.size() && going()) runLine(next_++);
    }

    void runLine(std::size_t i) {
        lineNo_ = i + 1;
        const std::string& raw = lines_[i];
        const auto first = raw.find_first_not_of(" \t");
        if (first == std::string::npos || raw[first] == '#') return;
        try {
            std::vector<Token> t = tokenize(raw);
            const std::string& cmd = t[0].text;
            if (!t[0].quoted && (cmd == "file" || cmd == "profile" ||
                                 (cmd == "expect" && t.size() == 4 && t[1].text == "file" && t[3].text == "lines"))) {
                std::vector<std::string> block;
                std::size_t j = i + 1;
                for (; j < lines_.size() && lines_[j] != "end"; ++j) block.push_back(lines_[j]);
                if (j >= lines_.size()) throw LineError("no line 'end' closes this block");
                next_ = j + 1;
                if (cmd == "expect") expectLines(t[2].text, block);
                else writeBlock(cmd == "profile" ? "Brelk.ini" : word(t, 1), block);
                return;
            }
            command(t);
        } catch (const LineError& e) {
            broken(e.what());
        } catch (const RuntimeError& e) {
            broken("run-time error " + std::to_string(e.number()) + ": " + e.what());
        } catch (const std::exception& e) {
            broken(e.what());
        }
        reportDialogProblems();
    }

    void broken(const std::string& why) {
        ++tally_.broken;
        out_ << file_ << ":" << lineNo_ << ": cannot run: " << why << "\n";
    }
    void fail(const std::string& what) {
        ++tally_.failed;
        out_ << file_ << ":" << lineNo_ << ": " << what << "\n";
    }
    void check(bool ok, const std::string& what) {
        if (ok) ++tally_.passed;
        else fail(what);
    }
    void reportDialogProblems() {
        for (const auto& p : dialogs_.problems) broken(p);
        dialogs_.problems.clear();
    }

    static const std::string& word(const std::vector<Token>& t, std::size_t i) {
        if (i >= t.size()) throw LineError("missing word " + std::to_string(i + 1));
        return t[i].text;
    }
    static void arity(const std::vector<Token>& t, std::size_t min, std::size_t max) {
        if (t.size() < min || t.size() > max) throw LineError("wrong number of words for '" + t[0].text + "'");
    }

    static Value value(const Token& t) {
        if (t.quoted) return Value(t.text);
        if (t.text == "True") return Value(-1);
        if (t.text == "False") return Value(0);
        if (num::isStrictNumber(t.text)) return Value(num::strictValue(t.text));
        throw LineError("bad value " + t.text);
    }

    // A whole number from `low` to `high`, or the line cannot be run.
    static double whole(const std::string& s, const std::string& what, double low, double high) {
        const double v = num::isStrictNumber(s) ? num::strictValue(s) : -HUGE_VAL;
        if (v < low || v > high || v != std::floor(v)) throw LineError("bad " + what + " " + s);
        return v;
    }
    static std::int64_t millis(const std::string& s) {
        return static_cast<std::int64_t>(whole(s, "number of milliseconds", 0, 1e15));
    }

    struct Target { Form* form; Control* control; };

    Form& formNamed(const std::string& name) {
        if (name == "frmMain") return program_.frmMain;
        const auto& modal = name == "frmOptions" ? program_.frmOptions : program_.frmAbout;
        if (!modal || !modal->isLoaded()) throw LineError(name + " is not open");
        return *modal;
    }
    static bool isFormName(const std::string& s) { return s == "frmMain" || s == "frmOptions" || s == "frmAbout"; }

    // "name" or "name(3)".
    static std::pair<std::string, std::optional<std::int16_t>> splitIndex(const std::string& s) {
        const auto open = s.find('(');
        if (open == std::string::npos) return {s, std::nullopt};
        if (s.back() != ')') throw LineError("bad control " + s);
        const std::string inner = s.substr(open + 1, s.size() - open - 2);
        if (!num::isStrictNumber(inner)) throw LineError("bad index in " + s);
        return {s.substr(0, open), num::toInt16(num::strictValue(inner))};
    }

    Target resolve(const std::vector<std::string>& parts) {
        if (parts.empty()) throw LineError("missing target");
        std::size_t i = 0;
        Form* form = &program_.frmMain;
        if (isFormName(parts[0])) {
            form = &formNamed(parts[0]);
            ++i;
        }
        if (i == parts.size()) return {form, &form->self()};
        if (i + 1 != parts.size()) throw LineError("bad target " + parts.back());
        auto [name, index] = splitIndex(parts[i]);
        if (!form->exists(name)) throw LineError("unknown control " + name);
        Control* c = form->find(name, index);
        if (!c) throw LineError(parts[i] + " is not loaded");
        return {form, c};
    }

    // The parts of a dotted name; a dot between parentheses divides nothing.
    static std::vector<std::string> dotted(const std::string& s) {
        std::vector<std::string> parts(1);
        int depth = 0;
        for (const char c : s) {
            depth += (c == '(') - (c == ')');
            if (c == '.' && depth == 0) parts.emplace_back();
            else parts.back().push_back(c);
        }
        return parts;
    }

    Target target(const std::string& s) { return resolve(dotted(s)); }

    // TARGET.PROPERTY: the property is the last part.
    std::pair<Target, std::string> targetProperty(const std::string& s) {
        auto parts = dotted(s);
        if (parts.size() < 2) throw LineError("expected TARGET.PROPERTY, got " + s);
        const std::string prop = parts.back();
        parts.pop_back();
        return {resolve(parts), prop};
    }

    static Value readProperty(Control& c, const std::string& prop) {
        if (prop.rfind("List(", 0) == 0 && prop.back() == ')') {
            const std::string inner = prop.substr(5, prop.size() - 6);
            if (!num::isStrictNumber(inner)) throw LineError("bad list index " + prop);
            const double i = num::strictValue(inner);
            const auto& items = c.listItems();
            if (c.kind() != ControlKind::ComboBox) throw LineError(c.displayName() + " has no list");
            if (i < 0 || i >= static_cast<double>(items.size())) return Value("");
            return Value(items[static_cast<std::size_t>(i)]);
        }
        const auto p = propFromName(prop);
        if (!p || !(c.has(*p) || (*p == Prop::ListCount && c.kind() == ControlKind::ComboBox)))
            throw LineError("unknown property " + prop + " of " + c.displayName());
        // A picture reads as its catalogue word, "" when it is none of the
        // catalogue (the program's own icon).
        if (*p == Prop::Picture && !iconIndex(c.get(*p).text())) return Value("");
        return c.get(*p);
    }

    static bool equal(const Value& actual, const Value& expected) {
        if (expected.isText()) return actual.text() == expected.text();
        return actual.number() == expected.number();
    }

    static int buttonWord(const std::vector<Token>& t, std::size_t i) {
        if (i >= t.size() || t[i].text == "left") return button::Left;
        if (t[i].text == "right") return button::Right;
        if (t[i].text == "middle") return button::Middle;
        throw LineError("bad button " + t[i].text);
    }

    // Runs an action of the user; the program's end is absorbed.
    void act(const std::function<void()>& action) {
        if (program_.ended()) throw LineError("the program has ended");
        program_.guarded(action);
    }

    void writeBlock(const std::string& name, const std::vector<std::string>& lines) {
        std::string bytes;
        for (const auto& l : lines) bytes += l + "\r\n";
        if (!files::writeAll(files::join(dir_, name), bytes)) throw LineError("cannot write " + name);
    }

    std::optional<std::string> readFile(const std::string& name) {
        std::string bytes;
        if (files::readRegularFile(files::join(dir_, name), bytes) != files::ReadStatus::Ok) return std::nullopt;
        return bytes;
    }

    void expectLines(const std::string& name, const std::vector<std::string>& expected) {
        const auto bytes = readFile(name);
        if (!bytes) return fail("file " + name + " does not exist");
        const auto actual = splitLines(*bytes);
        if (actual == expected) return check(true, "");
        const auto [e, a] = std::ranges::mismatch(expected, actual);
        const auto at = [](const auto& lines, auto it) { return it == lines.end() ? "(none)" : quote(*it); };
        fail("file " + name + " lines differ: expected " + std::to_string(expected.size()) + " lines, found " +
             std::to_string(actual.size()) + "; first difference at line " +
             std::to_string(e - expected.begin() + 1) + ": expected " + at(expected, e) + ", found " + at(actual, a));
    }

    void queueAnswer(const std::vector<Token>& t) {
        arity(t, 3, 5);
        const std::string& kind = t[1].text;
        Answer a;
        a.value = t[2].text;
        a.cancel = !t[2].quoted && t[2].text == "cancel";
        if (t.size() >= 4) {
            if (t[3].text != "after" || t.size() != 5) throw LineError("expected 'after MS'");
            a.afterMs = millis(t[4].text);
        }
        const std::map<std::string, std::deque<Answer>*> queues = {
            {"open", &dialogs_.openAnswers}, {"msgbox", &dialogs_.msgboxAnswers}, {"input", &dialogs_.inputAnswers},
            {"color", &dialogs_.colorAnswers}, {"popup", &dialogs_.popupAnswers}};
        const auto queue = queues.find(kind);
        if (queue == queues.end()) throw LineError("unknown dialog kind " + kind);
        if (kind == "msgbox" && a.value != "ok" && a.value != "cancel" && a.value != "yes" && a.value != "no")
            throw LineError("bad msgbox answer " + a.value);
        if (kind == "color" && !a.cancel) whole(a.value, "colour", 0, 0xFFFFFF);  // a whole colour of 24 bits
        if (kind == "popup" && t.size() != 3) throw LineError("a popup answer takes no 'after'");
        queue->second->push_back(a);
    }

    void expectation(const std::vector<Token>& t) {
        const std::string& what = word(t, 1);
        if (what == "var") {
            arity(t, 5, 5);
            if (t[3].text != "=") throw LineError("expected '='");
            if (!varKind(t[2].text)) throw LineError("unknown variable " + t[2].text);
            const Value actual = readVar(program_.vars, t[2].text);
            const Value expected = value(t[4]);
            return check(equal(actual, expected),
                         "var " + t[2].text + ": expected " + show(expected) + ", found " + show(actual));
        }
        if (what == "msgbox") {
            arity(t, 4, 4);
            for (auto& box : dialogs_.boxes) {
                if (box.checked) continue;
                box.checked = true;
                return check(box.title == t[2].text && box.prompt == t[3].text,
                             "msgbox: expected " + quote(t[2].text) + " " + quote(t[3].text) + ", found " +
                                 quote(box.title) + " " + quote(box.prompt));
            }
            return fail("msgbox: expected " + quote(t[2].text) + " " + quote(t[3].text) + ", none was shown");
        }
        if (what == "no") {
            arity(t, 3, 4);
            if (t[2].text == "msgbox") {
                std::string unchecked;
                for (auto& box : dialogs_.boxes)
                    if (!box.checked) {
                        unchecked += " " + quote(box.title) + " " + quote(box.prompt) + ";";
                        box.checked = true;
                    }
                return check(unchecked.empty(), "no msgbox expected, found" + unchecked);
            }
            if (t[2].text == "file") {
                const std::string& name = word(t, 3);
                return check(!readFile(name), "file " + name + " exists");
            }
            throw LineError("unknown expectation 'no " + t[2].text + "'");
        }
        if (what == "popup") {
            arity(t, 3, 3);
            return check(dialogs_.lastPopup == t[2].text,
                         "popup: expected " + t[2].text + ", found " + dialogs_.lastPopup.value_or("(none)"));
        }
        if (what == "ended") {
            arity(t, 2, 2);
            return check(program_.ended(), "the program has not ended");
        }
        if (what == "file") {
            arity(t, 5, 5);
            const std::string& name = t[2].text;
            const std::string& mode = t[3].text;
            if (mode != "has" && mode != "lacks") throw LineError("expected 'has' or 'lacks'");
            const auto bytes = readFile(name);
            if (!bytes) return fail("file " + name + " does not exist");
            const bool found = std::ranges::count(splitLines(*bytes), t[4].text) > 0;
            if (mode == "has") return check(found, "file " + name + " has no line " + quote(t[4].text));
            return check(!found, "file " + name + " has the line " + quote(t[4].text));
        }
        // expect TARGET.PROPERTY = VALUE
        arity(t, 4, 4);
        if (t[2].text != "=") throw LineError("expected '='");
        auto [target, prop] = targetProperty(t[1].text);
        const Value actual = readProperty(*target.control, prop);
        const Value expected = value(t[3]);
        check(equal(actual, expected), t[1].text + ": expected " + show(expected) + ", found " + show(actual));
    }

    // Commands whose second word is a target: their least and most words.
    static inline const std::map<std::string, std::pair<std::size_t, std::size_t>> kOnTarget = {
        {"down", {2, 3}}, {"up", {2, 3}}, {"click", {2, 3}}, {"dblclick", {2, 2}}, {"move", {2, 2}},
        {"key", {3, 3}}, {"type", {3, 3}}, {"focus", {2, 2}}, {"blur", {2, 2}}, {"pick", {3, 3}}};

    void onTarget(const std::string& cmd, Target tg, const std::vector<Token>& t) {
        Form& form = *tg.form;
        Control& c = *tg.control;
        if (cmd == "down" || cmd == "up" || cmd == "click") {
            const int b = buttonWord(t, 2);
            return act([&] {
                if (cmd == "down") return form.mouseDown(c, b);
                if (cmd == "up") return form.mouseUp(c, b);
                if (c.kind() == ControlKind::CommandButton) {
                    if (!c.enabled()) return;
                    form.setFocus(&c);
                }
                form.mouseDown(c, b);
                form.mouseUp(c, b);
                form.click(c);
            });
        }
        if (cmd == "dblclick") {
            return act([&] {
                form.mouseDown(c, button::Left);
                form.mouseUp(c, button::Left);
                form.click(c);
                form.dblClick(c);
                form.mouseUp(c, button::Left);
            });
        }
        if (cmd == "move") return act([&] { form.mouseMove(c, 0); });
        if (cmd == "key") {
            if (!num::isStrictNumber(t[2].text)) throw LineError("bad key code " + t[2].text);
            const int code = static_cast<int>(num::strictValue(t[2].text));
            return act([&] {
                if (form.hasHandler(c.name(), Event::KeyDown)) {
                    EventArgs a;
                    a.keyCode = code;
                    return form.raise(c, Event::KeyDown, a);
                }
                // Nothing takes the key: Esc and Enter press the form's Cancel and Default buttons.
                if (code == key::Escape) form.pressCancel();
                else if (code == key::Return) form.pressDefault();
            });
        }
        if (cmd == "type") {
            if (!c.has(Prop::Text)) throw LineError(t[1].text + " takes no text");
            return act([&] { c.setText(t[2].text); });
        }
        if (cmd == "focus") {
            return act([&] {
                // The control that had the focus loses it, even when it is the target itself.
                if (form.focus() != &c) return form.setFocus(&c);
                form.raise(c, Event::LostFocus);
                form.raise(c, Event::GotFocus);
            });
        }
        if (cmd == "blur") {
            return act([&] {
                form.dropFocus();
                form.raise(c, Event::LostFocus);
            });
        }
        // pick
        if (c.kind() != ControlKind::ComboBox) throw LineError(t[1].text + " is no list");
        if (!num::isStrictNumber(t[2].text)) throw LineError("bad entry " + t[2].text);
        const double n = num::strictValue(t[2].text);
        if (n < 0 || n >= static_cast<double>(c.listItems().size())) throw LineError("the list has no entry " + t[2].text);
        act([&] {
            c.setNumber(Prop::ListIndex, n);
            form.raise(c, Event::Click);
        });
    }

    void command(const std::vector<Token>& t) {
        const std::string& cmd = t[0].text;
        if (t[0].quoted) throw LineError("a line cannot start with a string");
        if (cmd == "expect") return expectation(t);
        if (cmd == "answer") return queueAnswer(t);
        if (cmd == "bytes") {
            arity(t, 3, 3);
            if (!t[2].quoted) throw LineError("bytes takes a string");
            if (!files::writeAll(files::join(dir_, t[1].text), t[2].text)) throw LineError("cannot write " + t[1].text);
            return;
        }
        if (cmd == "screen") {
            arity(t, 4, 4);
            if (t[1].text != "width" || !num::isStrictNumber(t[3].text)) throw LineError("expected 'screen width N'");
            world_.windows.screenTwips = static_cast<int>(num::strictValue(t[3].text));
            return;
        }
        if (cmd == "start") {
            arity(t, 1, 1);
            if (program_.frmMain.isLoaded()) throw LineError("the program has started already");
            return act([&] { program_.start(); });
        }
        if (cmd == "set") {
            if (t.size() == 5 && t[1].text == "var") {
                if (t[3].text != "=") throw LineError("expected '='");
                if (!varKind(t[2].text)) throw LineError("unknown variable " + t[2].text);
                writeVar(program_.vars, t[2].text, value(t[4]));
                return;
            }
            arity(t, 4, 4);
            if (t[2].text != "=") throw LineError("expected '='");
            auto [target, prop] = targetProperty(t[1].text);
            const auto p = propFromName(prop);
            if (!p || !target.control->has(*p)) throw LineError("unknown property " + prop);
            const Value v = value(t[3]);
            Control* control = target.control;  // a lambda may not capture a structured binding everywhere
            return act([&] { control->set(*p, v); });
        }
        if (cmd == "additem" || cmd == "addcategory") {
            arity(t, 2, 2);
            if (!t[1].quoted) throw LineError(cmd + " takes a string");
            // A failure is the program's own, told in its error box as for any
            // error no procedure caught; the rows made so far stay.
            const std::string text = t[1].text;
            act([&] {
                try {
                    if (cmd == "additem") AddItem(program_, text);
                    else AddCategory(program_, text);
                } catch (const RuntimeError& e) {
                    program_.reportError(e);
                }
            });
            return;
        }
        if (cmd == "menu") {
            arity(t, 2, 2);
            Control* entry = program_.frmMain.find(t[1].text);
            if (!entry || entry->kind() != ControlKind::Menu) throw LineError("unknown menu entry " + t[1].text);
            if (!program_.frmMain.hasHandler(t[1].text, Event::Click))
                throw LineError(t[1].text + " is not available yet");
            return act([&] { program_.frmMain.raise(*entry, Event::Click); });
        }
        if (const auto words = kOnTarget.find(cmd); words != kOnTarget.end()) {
            arity(t, words->second.first, words->second.second);
            return onTarget(cmd, target(t[1].text), t);
        }
        if (cmd == "wait") {
            arity(t, 2, 2);
            const auto ms = millis(t[1].text);
            if (program_.ended()) {
                clock_.advanceBy(ms);
                return;
            }
            return act([&] { clock_.advanceBy(ms); });
        }
        throw LineError("unknown command " + cmd);
    }

    std::string file_;
    std::ostream& out_;
    doubles::ScriptedProgram world_;
    const std::string& dir_ = world_.dir;
    TimerScheduler& clock_ = world_.clock;
    ScriptedDialogs& dialogs_ = world_.dialogs;
    Brelk& program_ = world_.p;
    Tally tally_;
    std::vector<std::string> lines_;
    std::size_t next_ = 0;  // the next line to run
    std::size_t lineNo_ = 0;
};

}  // namespace

Tally runScenario(const std::string& path, std::ostream& out) {
    try {
        Run run(path, out);
        return run.execute();
    } catch (const std::exception& e) {
        out << path << ": " << e.what() << "\n";
        Tally t;
        t.broken = 1;
        return t;
    }
}

}  // namespace brelk::scenario
