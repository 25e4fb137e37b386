#include "mToolBar.h"

#include "Toolbar.h"

namespace qs {

void tbrMakeFlat(Toolbar& toolbar) {
    toolbar.setFlat(!toolbar.Flat());
}

} // namespace qs
