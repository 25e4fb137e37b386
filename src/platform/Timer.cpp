#include "Timer.h"

namespace qs {

Timer::Timer(const QString& name, QObject* parent) : QObject(parent) {
    setObjectName(name);
    connect(&mTimer, &QTimer::timeout, this, [this] {
        if (OnTimer)
            OnTimer();
    });
}

void Timer::setInterval(int milliseconds) {
    mInterval = milliseconds < 0 ? 0 : milliseconds;
    update();
}

void Timer::setEnabled(bool enabled) {
    mEnabled = enabled;
    update();
}

void Timer::update() {
    // Setting either property starts the count afresh, as the platform's timer does.
    if (mEnabled && mInterval > 0)
        mTimer.start(mInterval);
    else
        mTimer.stop();
}

} // namespace qs
