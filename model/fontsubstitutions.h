#pragma once

/// Lets layouts that name fonts which cannot be bundled show a bundled face of the same role. The name in the
/// layout stays as it is. To be called once at start; calling it again changes nothing.
void registerFontSubstitutions();
