#pragma once

#include "qxVariantKinds.h"

#include "qxFinding.h"

#include <QByteArray>

#include <array>
#include <vector>

/// Where an element stands in the document.
struct qxSourceLocation {
    int line = 0;
    int column = 0;
    int ordinal = 0; ///< among its siblings of the same name, from 1
};

struct qxSyntaxTreeReference {
    const qxVariantKind *kind;
    QString variant;
    QString state;
    qxSourceLocation location;
};

/// An element that matters for one text, and sometimes for a second one.
struct qxSyntaxTreeText {
    QString text;
    QString more; ///< the material of a snapshot, the path of a script's element
    qxSourceLocation location;
};

/// The lists of names that a set can hold.
enum class qxNameList { Viewpoints, Animations, Geometries, Targets };
constexpr int qxNameLists = 4;

struct qxSyntaxTreeSet {
    QString name;
    QString path;
    qxSourceLocation location;
    std::vector<qxSyntaxTreeReference> references; ///< of all kinds in the document's order
    std::array<std::vector<qxSyntaxTreeText>, qxNameLists> names;
    std::vector<qxSyntaxTreeText> snapshots;
    QString defaultViewpoint;
    qxSyntaxTreeText script;
    qxSyntaxTreeText hotkey;
    int clipState = 0;
    bool inclNodes = false; ///< a selection shows its targets
    QByteArray digest; ///< of everything but name, comment, hotkey and preview

    const std::vector<qxSyntaxTreeText> &of(qxNameList list) const
    {
        return names[std::size_t(list)];
    }
    /// Whether selecting the set does nothing, as qxVariantSet::isEmpty has it.
    bool isEmpty() const;
};

struct qxSyntaxTreeGroup {
    QString name;
    QString path;
    qxSourceLocation location;
    int sets = 0;
};

struct qxSyntaxTreeOption {
    QString name;
    qxSyntaxTreeText hotkey;
    qxSourceLocation location;
};

struct qxSyntaxTreeVariant {
    const qxVariantKind *kind = &qxVariantKinds::node;
    QString name;
    QString base; ///< the name of its scene object
    QString path;
    qxSourceLocation location;
    qxSyntaxTreeText standard; ///< the default state
    std::vector<qxSyntaxTreeOption> options;
};

/// A variants document as it is written down, each thing with its place: also what the reader skips
/// or replaces while it fills the registry.
struct qxSyntaxTree {
    std::vector<qxSyntaxTreeGroup> groups;
    std::vector<qxSyntaxTreeSet> sets;
    std::vector<qxSyntaxTreeVariant> variants;
    bool isWhole = false; ///< false when the document is not well-formed

    /// Parses `document` and adds what is wrong with its form to `findings`.
    static qxSyntaxTree of(const QByteArray &document, qxFindingList &findings);
};
