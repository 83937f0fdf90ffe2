#pragma once

#include <QObject>
#include <QString>

class QTextToSpeech;

namespace brelk::callouts::qt {

// The speech engine, in a thread of its own. It is made at the first call
// (or at start()), so that nothing talks to the speech service until the
// coach has chosen the voice.
class SpeechWorker : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    void start();
    void say(const QString& text, double volume, unsigned turn);

signals:
    // The call `turn` has been said, or could not be.
    void said(unsigned turn);
    // The engine reported an error: it will say nothing.
    void broken();

private:
    QTextToSpeech* engine_ = nullptr;
    unsigned turn_ = 0;
    bool speaking_ = false;
};

}  // namespace brelk::callouts::qt
