#pragma once

#include "qxCheckCodes.h"

/// Something that a check found in a variants document.
struct qxFinding {
    qxCode code;
    QString message;
    QString path; ///< of the element, such as: Variants/VariantSet[3] "Sport"/NodeVariantRef[2]
    int line = 0; ///< in the document, from 1
    int column = 0; ///< of the first character of the element, from 1

    qxSeverity severity() const { return qxCheckCodes::row(code).severity; }
};

typedef QVector<qxFinding> qxFindings;
