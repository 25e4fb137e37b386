#pragma once

#include <QLineEdit>
#include <functional>

namespace qs {

// A one-line text box over QLineEdit that raises KeyUp when a key is let go, with the key code
// and shift state the logic's handlers take.
class TextBox : public QLineEdit {
    Q_OBJECT
public:
    explicit TextBox(const QString& name, QWidget* parent = nullptr);
    // The event members go before the base widget, which may still signal while it dies.
    ~TextBox() override { blockSignals(true); }

    QString Name() const { return objectName(); }
    QString Text() const { return text(); }
    void setText(const QString& value) { QLineEdit::setText(value); }

    std::function<void(int& keyCode, int shift)> KeyUp;

protected:
    void keyReleaseEvent(QKeyEvent* event) override;
};

} // namespace qs
