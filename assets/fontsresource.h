#pragma once

/// Makes the bundled fonts and their licence texts readable; called by initAssets() alone.
void initFontsResource();
