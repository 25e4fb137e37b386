#pragma once

#include <QHash>
#include <QIcon>
#include <QStringList>

namespace qs {

// The one image list of the program (imgListIcons_BitMaps and the tool bar's list): every image
// key the trees and the tool bar use, each with an icon drawn here.  A key is compared as text,
// exactly.  Asking for an unknown key raises error 35601 "Element not found".
class ImageList {
public:
    // The process-wide list; built on first use (needs a running QGuiApplication).
    static ImageList& instance();

    bool Exists(const QString& key) const { return mIcons.contains(key); }
    // The icon of `key`; raises 35601 for an unknown key.
    QIcon ListImages(const QString& key) const;
    // Every key, in the order the list holds them.
    const QStringList& Keys() const { return mKeys; }
    int Count() const { return mKeys.size(); }

    static constexpr long kErrElementNotFound = 35601;

private:
    ImageList();
    void add(const QString& key, const QIcon& icon);
    QStringList mKeys;
    QHash<QString, QIcon> mIcons;
};

} // namespace qs
