#pragma once

/// Makes everything under ":/assets/" readable. A resource in a static library is dropped by the linker
/// unless something names it; this is the one place that does. Calling it again does no harm.
void initAssets();
