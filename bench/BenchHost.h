#pragma once

#include "Host.h"

#include <QStringList>

namespace qs::bench {

// The host of the window figures: a file dialog answers with the path set before, a message box
// is counted and answered OK, everything else does nothing.
class BenchHost : public Host {
public:
    QString nextFile;
    QStringList messages;

    int msgBox(const QString& prompt, int, const QString&) override {
        messages << prompt;
        return vbOK;
    }
    QString inputBox(const QString&, const QString&, const QString&) override { return {}; }
    QString fileDialog(const FileDialogRequest&) override { return nextFile; }
    void showModal(FormBase&) override {}
    void popupMenu(QMenu&) override {}
    void clipboardClear() override {}
    void clipboardSetText(const QString&) override {}
    QString clipboardGetText() override { return {}; }
    int shellExecute(const QString&, const QString&, const QString&, const QString&, int) override {
        return 42;
    }
    bool showHelp(const QString&, int, long) override { return true; }
    PrinterChoice printerDialog(int) override { return {}; }
    bool printText(const PrinterChoice&, const QString&, const QString&) override { return true; }
    void setMousePointer(int pointer) override { mPointer = pointer; }
    int mousePointer() const override { return mPointer; }
    bool previousInstance() override { return false; }
    void doEvents() override {}
    void endProcess() override {}

private:
    int mPointer = 0;
};

} // namespace qs::bench
