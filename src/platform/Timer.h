#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

namespace qs {

// A timer control over QTimer: it ticks every Interval milliseconds while Enabled and the
// interval is above 0.  Its object name is the design name ("tmrDrag").
class Timer : public QObject {
    Q_OBJECT
public:
    explicit Timer(const QString& name, QObject* parent = nullptr);

    QString Name() const { return objectName(); }
    int Interval() const { return mInterval; }
    void setInterval(int milliseconds);
    bool Enabled() const { return mEnabled; }
    void setEnabled(bool enabled);
    // True while the underlying timer runs.
    bool IsRunning() const { return mTimer.isActive(); }

    // The Timer event.
    std::function<void()> OnTimer;

private:
    void update();
    QTimer mTimer;
    int mInterval = 0;
    bool mEnabled = true;
};

} // namespace qs
