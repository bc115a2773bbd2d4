#pragma once

/// Makes the bundled fonts and their licence texts readable; called by initAssets() alone.
void initFontsResource();

/// How many bundled fonts and licence texts this build had to do without; 0 in a complete one.
int missingFontFiles();
