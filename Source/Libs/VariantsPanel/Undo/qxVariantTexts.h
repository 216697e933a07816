#pragma once

#include <QCoreApplication>

/// The texts of edits of variants.
class qxVariantTexts {
    Q_DECLARE_TR_FUNCTIONS(qxVariantTexts)
};
