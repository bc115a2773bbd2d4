#pragma once

/// What the editor does before it makes its application object: notes the environment of the user, for
/// programs started later, then sets its own. The tests on a real display start in the same way.
void prepareStart();
