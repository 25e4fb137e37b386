#pragma once

#include <QTabWidget>
#include <functional>

namespace qs {

// A tabbed pane over QTabWidget.  Tabs count from 0.  Click fires whenever the current tab
// changes, by a person or by setting Tab, with the tab that was current before.
class SSTab : public QTabWidget {
    Q_OBJECT
public:
    explicit SSTab(const QString& name, QWidget* parent = nullptr);
    // The event members go before the base widget, which may still signal while it dies.
    ~SSTab() override { blockSignals(true); }

    QString Name() const { return objectName(); }

    int Tab() const { return currentIndex(); }
    void setTab(int tab);
    // Number of tabs; raising it adds empty pages, lowering it drops the last ones.
    int Tabs() const { return count(); }
    void setTabs(int tabs);
    bool TabEnabled(int tab) const { return isTabEnabled(tab); }
    void setTabEnabled(int tab, bool enabled);
    QString TabCaption(int tab) const { return tabText(tab); }
    void setTabCaption(int tab, const QString& caption);
    // The page of a tab, to lay out controls on; raises 380 for a tab that isn't there.
    QWidget* Page(int tab) const;

    std::function<void(int previousTab)> Click;
    // The tab row takes the focus (a click on a caption, or the Tab key); a control on a page
    // taking it raises nothing here.
    std::function<void()> GotFocus;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int mCurrent = -1;
};

} // namespace qs
