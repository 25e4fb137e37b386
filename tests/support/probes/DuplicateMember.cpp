// A second definition of a main-window member, as a later subsystem might add by mistake.
#include "frmMain.h"

namespace qs {
void frmMain::ClearAllControls() {}
} // namespace qs

int main() {
    return 0;
}
