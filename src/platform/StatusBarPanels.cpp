#include "StatusBarPanels.h"

#include "QsError.h"
#include "StatusBar.h"

#include <QLabel>

namespace qs {

namespace {
[[noreturn]] void notFound() {
    throw QsError(35601, QString::fromLatin1(kAppSource), QStringLiteral("Element not found"));
}
} // namespace

Panel& StatusBarPanels::Add(const QString& key, const QString& text) {
    auto* label = new QLabel(text, mBar);
    label->setTextFormat(Qt::PlainText);
    // The first panel takes the spare width.
    mBar->addWidget(label, mPanels.empty() ? 1 : 0);
    mPanels.push_back(std::make_unique<Panel>(label, Count() + 1, key));
    return *mPanels.back();
}

Panel& StatusBarPanels::Item(int index) const {
    if (index < 1 || index > Count())
        notFound();
    return *mPanels[static_cast<size_t>(index - 1)];
}

Panel& StatusBarPanels::Item(const QString& key) const {
    for (const auto& p : mPanels)
        if (!key.isEmpty() && p->Key() == key)
            return *p;
    notFound();
}

} // namespace qs
