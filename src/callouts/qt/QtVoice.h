#pragma once

#include <functional>
#include <optional>

#include <QObject>
#include <QString>
#include <QTimer>

#include "callouts/Voice.h"

class QAudioSink;
class QBuffer;
class QThread;

namespace brelk::callouts::qt {

class SpeechWorker;

// The call-outs heard. The voice is the system's speech engine through Qt's
// text-to-speech, with the system's voice and rate and the coach's volume;
// it runs in a thread of its own, made when the voice is first wanted, so
// that a speech service that does not answer (one with no sound output
// hangs) never stops the window. The tone is a short beep made here and
// played on the default sound output. A call not heard in due time counts
// as said, so the calls behind it are not held up.
class QtVoice : public QObject, public Voice {
public:
    QtVoice();
    ~QtVoice() override;

    void say(const Call& call, std::function<void()> done) override;

    // Why the voice or the tone cannot be heard on this system, and what to
    // install; empty when it can.
    QString whyNoVoice() const;
    QString whyNoTone() const;
    // Starts the speech engine ahead of the first call.
    void warmUp();

private:
    void sayWords(const Call& call);
    void playTones(const Call& call);
    void finished(unsigned turn);

    std::function<void()> done_;
    unsigned turn_ = 0;
    QTimer watchdog_;
    mutable std::optional<bool> engineFound_;
    bool broken_ = false;
    QThread* thread_ = nullptr;
    SpeechWorker* worker_ = nullptr;
    // The tone being played and its samples; children of this object.
    QAudioSink* sink_ = nullptr;
    QBuffer* samples_ = nullptr;
};

}  // namespace brelk::callouts::qt
