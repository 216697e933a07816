#pragma once

#include "qxVariantMemento.h"

#include "qxEditStep.h"

/// Adds or removes variants of the registry; the scene stays as it is.
class qxVariantsPresence : public qxEditStep {
public:
    enum Way { Come, Go };
    struct Part {
        qxVariantMemento contents;
        int index = -1; ///< among the variants of its kind; -1 for the end
    };

    /// The parts of these variants, as they are now. Unknown ones are left out.
    static std::vector<Part> partsOf(const std::vector<qxVariantName> &variants);

    qxVariantsPresence(const QString &text, Way way, std::vector<Part> parts);

protected:
    bool perform(bool forward) override;

private:
    bool appear();
    bool vanish();

    bool m_comes;
    std::vector<Part> m_parts;
};

/// Edits a variant, its name included; what refers to it stays as it is.
class qxVariantEdit : public qxEditStep {
public:
    qxVariantEdit(const QString &text, const qxVariantMemento &before,
                  const qxVariantMemento &after);

protected:
    bool perform(bool forward) override;

private:
    qxVariantMemento m_before;
    qxVariantMemento m_after;
};
