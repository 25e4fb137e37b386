#include "ToolbarButtons.h"

#include "QsError.h"
#include "Toolbar.h"

#include <QAction>

namespace qs {

namespace {
[[noreturn]] void notFound() {
    throw QsError(35601, QString::fromLatin1(kAppSource), QStringLiteral("Element not found"));
}
} // namespace

Button& ToolbarButtons::Add(const QString& key, const QString& caption, int style,
                            const QString& image) {
    if (!key.isEmpty() && Exists(key))
        throw QsError(35602, QString::fromLatin1(kAppSource),
                      QStringLiteral("Key is not unique in collection"));
    QAction* action = style == tbrSeparator ? mBar->addSeparator() : mBar->addAction(caption);
    if (style == tbrCheck)
        action->setCheckable(true);
    action->setObjectName(key);
    mBar->setFlat(mBar->Flat()); // the new button takes the bar's look
    auto button = std::make_unique<Button>(mBar, action, Count() + 1, key, style);
    Button& b = *button;
    mButtons.push_back(std::move(button));
    if (style != tbrSeparator)
        QObject::connect(action, &QAction::triggered, mBar, [bar = mBar, &b] {
            if (bar->ButtonClick)
                bar->ButtonClick(b);
        });
    if (!image.isEmpty())
        b.setImage(image);
    return b;
}

Button& ToolbarButtons::Item(const QString& key) const {
    for (const auto& b : mButtons)
        if (!key.isEmpty() && b->Key() == key)
            return *b;
    notFound();
}

Button& ToolbarButtons::Item(int index) const {
    if (index < 1 || index > Count())
        notFound();
    return *mButtons[static_cast<size_t>(index - 1)];
}

bool ToolbarButtons::Exists(const QString& key) const {
    for (const auto& b : mButtons)
        if (b->Key() == key)
            return true;
    return false;
}

} // namespace qs
