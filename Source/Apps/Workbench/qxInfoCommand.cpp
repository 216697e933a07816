#include "qxCommand.h"
#include "qxOutput.h"
#include "qxSession.h"
