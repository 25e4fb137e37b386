// libFuzzer entry point for the module parser: any text must parse without a crash, a hang or a
// sanitizer report, and leave lists that keep their bounds rules.  Self-contained: a silent host
// answers the failure box, so a corpus replay can call the entry as it is.
#include "Host.h"
#include "cCodeParser.h"

#include <QString>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

// Answers every prompt with its first button and shows nothing.
class SilentHost : public qs::Host {
public:
    int msgBox(const QString&, int, const QString&) override { return qs::vbOK; }
    QString inputBox(const QString&, const QString&, const QString&) override { return {}; }
    QString fileDialog(const qs::FileDialogRequest&) override { return {}; }
    void showModal(qs::FormBase&) override {}
    void popupMenu(QMenu&) override {}
    void clipboardClear() override {}
    void clipboardSetText(const QString&) override {}
    QString clipboardGetText() override { return {}; }
    int shellExecute(const QString&, const QString&, const QString&, const QString&, int) override {
        return 0;
    }
    bool showHelp(const QString&, int, long) override { return false; }
    qs::PrinterChoice printerDialog(int) override { return {}; }
    bool printText(const qs::PrinterChoice&, const QString&, const QString&) override {
        return false;
    }
    void setMousePointer(int pointer) override { mPointer = pointer; }
    int mousePointer() const override { return mPointer; }
    bool previousInstance() override { return false; }
    void doEvents() override {}
    void endProcess() override {}

private:
    int mPointer = 0;
};

void check(bool condition) {
    if (!condition)
        std::abort();
}

// Bounds 0 to 0 for no member, 1 to n otherwise; a member starts with a line end, and the only
// line ends in it are the CR LF pairs put before each line.  Element 0 of an empty list may hold
// lines too: a keyword line inside an open member switches lists without opening an element.
// Returns the lines stored.
qsizetype checkList(const qs::MemberList& list) {
    check(list.LBound() == 0 || list.LBound() == 1);
    check(list.LBound() == 1 || list.UBound() == 0);
    check(list.UBound() >= list.LBound());
    check(list.elements().size() == list.UBound() - list.LBound() + 1);
    qsizetype lines = 0;
    for (const QString& element : list.elements()) {
        check(element.isEmpty() || element.startsWith(QLatin1String("\r\n")));
        check(list.LBound() == 0 || !element.isEmpty());
        const qsizetype pairs = element.count(QLatin1String("\r\n"));
        check(element.count(QLatin1Char('\r')) == pairs &&
              element.count(QLatin1Char('\n')) == pairs);
        lines += pairs;
    }
    return lines;
}

bool sameLists(const qs::MemberList& a, const qs::MemberList& b) {
    return a.LBound() == b.LBound() && a.elements() == b.elements();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static SilentHost host;
    qs::setHost(&host);
    const QString code = QString::fromLatin1(reinterpret_cast<const char*>(data), qsizetype(size));

    qs::cCodeParser parser;
    parser.ParseSourceCode(code);
    const qsizetype stored = checkList(parser.Functions()) + checkList(parser.Subs()) +
                             checkList(parser.APIDeclares()) + checkList(parser.Types()) +
                             checkList(parser.Enums()) + checkList(parser.Constants()) +
                             checkList(parser.ModuleVars()) + checkList(parser.Properties());
    check(parser.ModuleVars().LBound() == 0 && parser.ModuleVars()(0).isEmpty());
    // Every line goes to one list at most.
    const qsizetype lineEnds = code.count(QLatin1Char('\n')) + code.count(QLatin1Char('\r')) -
                               code.count(QLatin1String("\r\n"));
    check(stored <= lineEnds + 1);

    // A second parse of the same text, by a fresh object, gives the same lists.
    qs::cCodeParser again;
    again.ParseSourceCode(code);
    check(sameLists(parser.Functions(), again.Functions()) &&
          sameLists(parser.Subs(), again.Subs()) &&
          sameLists(parser.APIDeclares(), again.APIDeclares()) &&
          sameLists(parser.Types(), again.Types()) && sameLists(parser.Enums(), again.Enums()) &&
          sameLists(parser.Constants(), again.Constants()) &&
          sameLists(parser.Properties(), again.Properties()));
    return 0;
}
