#include "callouts/qt/QtVoice.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

#include <QBuffer>
#include <QThread>

#if BRELK_HAVE_SPEECH
#include <QTextToSpeech>

#include "callouts/qt/SpeechWorker.h"
#endif
#if BRELK_HAVE_TONE
#include <QAudioDevice>
#include <QAudioSink>
#include <QMediaDevices>
#endif

namespace brelk::callouts::qt {

namespace {

#if BRELK_HAVE_TONE
// `count` beeps of 880 Hz, 110 ms each with soft edges, 90 ms apart, in the
// sample format given (16-bit integers or floats). A new output stream may
// lose its first moments: the beeps come after a short silence.
QByteArray beeps(const QAudioFormat& format, int count) {
    constexpr double kPitch = 880, kBeepMs = 110, kGapMs = 90, kEdgeMs = 8, kLeadInMs = 150, kLevel = 0.5;
    const int rate = format.sampleRate();
    const int beep = static_cast<int>(rate * kBeepMs / 1000);
    const int gap = static_cast<int>(rate * kGapMs / 1000);
    const int edge = static_cast<int>(rate * kEdgeMs / 1000);
    const int leadIn = static_cast<int>(rate * kLeadInMs / 1000);
    const int frames = leadIn + count * beep + (count - 1) * gap;
    const int bytes = format.bytesPerSample();
    QByteArray data(frames * format.bytesPerFrame(), '\0');
    char* out = data.data();
    for (int b = 0; b < count; ++b) {
        for (int n = 0; n < beep; ++n) {
            const double envelope = std::min({1.0, double(n) / edge, double(beep - n) / edge});
            const double a = kLevel * envelope * std::sin(2 * std::numbers::pi * kPitch * n / rate);
            char* frame = out + (leadIn + b * (beep + gap) + n) * format.bytesPerFrame();
            for (int ch = 0; ch < format.channelCount(); ++ch) {
                if (format.sampleFormat() == QAudioFormat::Float) {
                    const float v = static_cast<float>(a);
                    std::memcpy(frame + ch * bytes, &v, sizeof v);
                } else {
                    const qint16 v = static_cast<qint16>(std::lround(a * 32767));
                    std::memcpy(frame + ch * bytes, &v, sizeof v);
                }
            }
        }
    }
    return data;
}
#endif

}  // namespace

QtVoice::QtVoice() {
    watchdog_.setSingleShot(true);
    connect(&watchdog_, &QTimer::timeout, this, [this] {
#if BRELK_HAVE_TONE
        if (sink_) sink_->stop();
#endif
        finished(turn_);
    });
}

QtVoice::~QtVoice() {
    done_ = nullptr;
    if (!thread_) return;
    thread_->quit();
    // A speech service that hangs holds the thread: it is left to the
    // process's exit rather than holding the window's end up.
    if (thread_->wait(500)) delete thread_;
}

QString QtVoice::whyNoVoice() const {
#if BRELK_HAVE_SPEECH
    if (!engineFound_) engineFound_ = !QTextToSpeech::availableEngines().isEmpty();
    if (!*engineFound_)
        return "No speech engine found: install the packages qt6-speech-speechd-plugin and "
               "speech-dispatcher-espeak-ng";
    if (broken_)
        return "The speech engine reported an error: check that speech-dispatcher and espeak-ng are "
               "installed and that the desktop has sound";
    return {};
#else
    return "This Brelk was built without Qt's text-to-speech: build it with qt6-speech-dev installed";
#endif
}

QString QtVoice::whyNoTone() const {
#if BRELK_HAVE_TONE
    if (QMediaDevices::audioOutputs().isEmpty())
        return "No sound output found: the tone needs PulseAudio or PipeWire (pipewire-pulse) running";
    return {};
#else
    return "This Brelk was built without Qt Multimedia: build it with qt6-multimedia-dev installed";
#endif
}

void QtVoice::warmUp() {
#if BRELK_HAVE_SPEECH
    if (thread_ || !whyNoVoice().isEmpty()) return;
    thread_ = new QThread;  // no parent: see the destructor
    worker_ = new SpeechWorker;
    worker_->moveToThread(thread_);
    connect(thread_, &QThread::finished, worker_, &QObject::deleteLater);
    connect(worker_, &SpeechWorker::said, this, [this](unsigned turn) { finished(turn); });
    connect(worker_, &SpeechWorker::broken, this, [this] { broken_ = true; });
    thread_->start();
    QMetaObject::invokeMethod(worker_, [w = worker_] { w->start(); }, Qt::QueuedConnection);
#endif
}

void QtVoice::say(const Call& call, std::function<void()> done) {
    done_ = std::move(done);
    ++turn_;
    if (call.sound == Sound::Voice && whyNoVoice().isEmpty()) sayWords(call);
    else if (call.sound == Sound::Tone && whyNoTone().isEmpty()) playTones(call);
    else finished(turn_);
}

void QtVoice::sayWords(const Call& call) {
#if BRELK_HAVE_SPEECH
    warmUp();
    const QString text = QString::fromStdString(call.text);
    const double volume = call.volume / 100.0;
    QMetaObject::invokeMethod(
        worker_, [w = worker_, text, volume, turn = turn_] { w->say(text, volume, turn); }, Qt::QueuedConnection);
    // A few words take a second or two; the first call also starts the service.
    watchdog_.start(std::min(3000 + 100 * static_cast<int>(text.size()), 10000));
#else
    (void)call;
    finished(turn_);
#endif
}

void QtVoice::playTones(const Call& call) {
#if BRELK_HAVE_TONE
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    QAudioFormat format = device.preferredFormat();
    if (format.sampleFormat() != QAudioFormat::Float) format.setSampleFormat(QAudioFormat::Int16);
    if (sink_) sink_->deleteLater();
    if (samples_) samples_->deleteLater();
    samples_ = new QBuffer(this);
    samples_->setData(beeps(format, std::max(call.tones, 1)));
    samples_->open(QIODevice::ReadOnly);
    sink_ = new QAudioSink(device, format, this);
    sink_->setVolume(QAudio::convertVolume(call.volume / 100.0, QAudio::LogarithmicVolumeScale,
                                           QAudio::LinearVolumeScale));
    connect(sink_, &QAudioSink::stateChanged, this, [this, sink = sink_, format, turn = turn_](QAudio::State state) {
        // All samples are handed over: they sound once the output's buffer has
        // played out. Stopped: by an error. The next call starts outside this signal.
        const qint64 left = state == QAudio::IdleState ? format.durationForBytes(sink->bufferSize()) / 1000 : 0;
        if (state == QAudio::IdleState || state == QAudio::StoppedState)
            QTimer::singleShot(static_cast<int>(left) + 50, this, [this, turn] { finished(turn); });
    });
    sink_->start(samples_);
    watchdog_.start(2000 + 300 * call.tones);
#else
    (void)call;
    finished(turn_);
#endif
}

void QtVoice::finished(unsigned turn) {
    if (turn != turn_ || !done_) return;
    watchdog_.stop();
    const auto done = std::move(done_);
    done_ = nullptr;
    done();
}

}  // namespace brelk::callouts::qt
