#pragma once

namespace qs {

class Toolbar;

// Toggles the flat look of the tool bar's buttons and redraws it.
void tbrMakeFlat(Toolbar& toolbar);

} // namespace qs
