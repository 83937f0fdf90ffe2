#include "callouts/qt/SpeechWorker.h"

#include <QTextToSpeech>

namespace brelk::callouts::qt {

void SpeechWorker::start() {
    if (engine_) return;
    // The system's default engine, voice and rate.
    engine_ = new QTextToSpeech(this);
    connect(engine_, &QTextToSpeech::stateChanged, this, [this](QTextToSpeech::State state) {
        if (state == QTextToSpeech::Error) emit broken();
        if ((state == QTextToSpeech::Ready || state == QTextToSpeech::Error) && speaking_) {
            speaking_ = false;
            emit said(turn_);
        }
    });
    if (engine_->state() == QTextToSpeech::Error) emit broken();
}

void SpeechWorker::say(const QString& text, double volume, unsigned turn) {
    start();
    if (engine_->state() == QTextToSpeech::Error) {
        emit said(turn);
        return;
    }
    turn_ = turn;
    speaking_ = true;
    engine_->setVolume(volume);
    engine_->say(text);
}

}  // namespace brelk::callouts::qt
