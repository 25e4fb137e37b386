#include "SSTab.h"

#include "QsError.h"

#include <QEvent>
#include <QTabBar>

namespace qs {

namespace {
[[noreturn]] void badTab() {
    throw QsError(380, QString::fromLatin1(kAppSource), QStringLiteral("Invalid property value"));
}
} // namespace

SSTab::SSTab(const QString& name, QWidget* parent) : QTabWidget(parent) {
    setObjectName(name);
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        const int previous = mCurrent;
        mCurrent = index;
        if (Click && previous != index)
            Click(previous);
    });
    // A click on a caption gives the tab row the focus, as the Tab key does.
    tabBar()->setFocusPolicy(Qt::StrongFocus);
    tabBar()->installEventFilter(this);
}

bool SSTab::eventFilter(QObject* watched, QEvent* event) {
    if (watched == tabBar() && event->type() == QEvent::FocusIn && GotFocus)
        GotFocus();
    return QTabWidget::eventFilter(watched, event);
}

void SSTab::setTab(int tab) {
    if (tab < 0 || tab >= count())
        badTab();
    setCurrentIndex(tab);
}

void SSTab::setTabs(int tabs) {
    if (tabs < 1)
        badTab();
    while (count() < tabs)
        addTab(new QWidget(), QString());
    while (count() > tabs) {
        QWidget* page = widget(count() - 1);
        removeTab(count() - 1);
        delete page;
    }
}

void SSTab::setTabEnabled(int tab, bool enabled) {
    if (tab < 0 || tab >= count())
        badTab();
    QTabWidget::setTabEnabled(tab, enabled);
}

void SSTab::setTabCaption(int tab, const QString& caption) {
    if (tab < 0 || tab >= count())
        badTab();
    setTabText(tab, caption);
}

QWidget* SSTab::Page(int tab) const {
    if (tab < 0 || tab >= count())
        badTab();
    return widget(tab);
}

} // namespace qs
