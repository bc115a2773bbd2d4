#include "update/startenvironment.h"

const QProcessEnvironment &startEnvironment()
{
    static const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    return environment;
}
