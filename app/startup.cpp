#include "app/startup.h"

#include "model/boardfonts.h"
#include "update/startenvironment.h"

#include <QtGlobal>

void prepareStart()
{
    startEnvironment();
    BoardFonts::clearVariables();
    // Nothing here draws with OpenGL; leaving it out halves the start-up work on X11. The platform asks for
    // this late, so it cannot be taken back.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
}
