#pragma once

#include "Program.h"

/// Standard error of a run, without what the scripting modules say when the interpreter ends.
inline QByteArray said(const ProgramRun &run)
{
    return QByteArray(run.err)
        .replace("pythonInit: destroy qxVariantSetPtr!\n", "")
        .replace("pythonInit: destroy qxVariants!\n", "");
}
