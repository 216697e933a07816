#pragma once

#include "qxAnalyzerVariant.h"
#include "qxVariantKinds.h"

#include <QByteArray>
#include <QSet>

#include <array>
#include <functional>

/// Where an element stands in the text of a document; all 0 for what was not read from a text.
struct qxSourceLocation {
    int line = 0; ///< from 1 on
    int column = 0; ///< of the element's first character, from 1 on
    int ordinal = 0; ///< among its siblings of the same name, from 1 on
};

/// An entry of a set: a variant, by name, and the state to select in it.
struct qxDocumentReference {
    const qxVariantKind *kind; ///< never null
    QString variant; ///< the name of the variant, which need not exist
    QString state; ///< the name of an option or an action such as "!Next"
    qxSourceLocation location; ///< of its element
};

/// An element that matters for a name or a text, and sometimes for a second one.
struct qxDocumentText {
    QString text; ///< the name or text itself; of a snapshot the path of a node, of a value its key
    QString more; ///< of a snapshot the name of a material, of a value what it is
    qxSourceLocation location; ///< of its element
};

/// The lists of names that a set can hold, in the order of the document.
enum class qxNameList { Viewpoints, Animations, Geometries, Targets };
constexpr int qxNameLists = 4; ///< how many there are

/// The five things that a capture can take, in the order of the document.
enum class qxInclusion { Nodes, Materials, Lights, Environment, View };
constexpr int qxInclusions = 5; ///< how many there are

/// A variant set as a document holds it.
struct qxDocumentSet {
    ///@{
    /// The entries of the list.
    const std::vector<qxDocumentText> &of(qxNameList list) const
    {
        return names[std::size_t(list)];
    }
    std::vector<qxDocumentText> &of(qxNameList list) { return names[std::size_t(list)]; }
    ///@}
    /// Whether the last capture took that.
    bool includes(qxInclusion what) const { return inclusions[std::size_t(what)]; }
    /// Whether selecting the set does nothing, as qxVariantSet::isEmpty has it.
    bool isEmpty() const;
    /// Leaves one entry of each name, where the first is and with what the last says, in the order
    /// in which they are written.
    void foldTwins();
    /// Settles this set alone, see qxDocument::settle.
    void settle();

    QString name; ///< not empty
    int group = -1; ///< the place of its group among the document's groups; -1 for none
    QString comment; ///< free text
    QString defaultViewpoint; ///< empty for none
    qxDocumentText hotkey; ///< key-sequence text
    bool hasHotkey = false; ///< whether a text says so, be it that there is none
    bool isSequential = false; ///< whether animations start in turn
    qxDocumentText script; ///< `more` is the path of the element that holds it
    QByteArray preview; ///< an encoded picture as base64; empty for none
    std::vector<qxDocumentReference> references; ///< of all kinds
    std::array<std::vector<qxDocumentText>, qxNameLists> names; ///< see of
    std::array<bool, qxInclusions> inclusions{}; ///< see includes
    std::vector<qxDocumentText> snapshots; ///< materials by paths of nodes
    std::vector<qxDocumentText> values; ///< by keys
    qxAnalyzerVariant clipping; ///< see qxClippingField
    QString path; ///< of its element, such as: Variants/VariantGroup[1] "Paint"/VariantSet[3] "Red"
    qxSourceLocation location; ///< of its element
};

/// A group as a document holds it; its sets name it by its place.
struct qxDocumentGroup {
    QString name; ///< not empty
    QString comment; ///< free text
    bool isVisible = true; ///< whether the user interface shows it
    int sets = 0; ///< how many sets name it
    QString path; ///< of its element
    qxSourceLocation location; ///< of its element
};

/// One state that a variant can be put in, as a document holds it.
struct qxDocumentOption {
    QString name; ///< a state; an action's begins with "!"
    qxDocumentText hotkey; ///< key-sequence text
    qxSourceLocation location; ///< of its element
};

/// A variant as a document holds it.
struct qxDocumentVariant {
    /// Leaves the first option of each name.
    void foldTwins();
    /// Settles this variant alone, see qxDocument::settle.
    void settle();

    const qxVariantKind *kind = &qxVariantKinds::node; ///< never null
    QString name; ///< not empty
    QString base; ///< the name of its scene object
    qxDocumentText standard; ///< the default state
    bool hasStandard = false; ///< whether a text says so; without it a twin's default state stays
    std::vector<qxDocumentOption> options; ///< in their order
    QString path; ///< of its element
    qxSourceLocation location; ///< of its element
};

/// Something in a document that its reader passes over, or takes for something else.
struct qxDocumentFlaw {
    /// What sort of flaw it is.
    enum Sort {
        Unreadable, ///< the document is not well-formed; the last flaw of it
        NoName, ///< a group, set or variant without a name, skipped with all that is in it
        Unknown, ///< an element that nothing reads
        NoWord, ///< a flag that is neither "true" nor "false" reads as false
        NoNumber, ///< a number that is none reads as 0
        NoPicture, ///< a preview that is no CDATA section is skipped
        NoKey, ///< a value without a name is skipped
        Forbidden ///< a character that XML forbids
    };

    Sort sort; ///< what sort of flaw it is
    QString message; ///< a sentence in English
    QString path; ///< of the element; empty for the document itself
    qxSourceLocation location; ///< where it is
};

/// A variants document as data: what the registry is filled from and written to, what checks look
/// at, and what is compared, merged and edited without a registry or a scene.
///
/// As qxDocumentXml reads it, it is what is written in a text, twins included. Settled, it is what
/// a registry would hold after reading it: every group, set and variant, and every entry of them,
/// has a name of its own, and everything stands in the order in which it is written.
struct qxDocument {
    /// Hears of flaws.
    typedef std::function<void(const qxDocumentFlaw &flaw)> FlawListener;

    /// Brings the document into the form that a registry gives it. Sets take the place of earlier
    /// ones of their name, also in other groups, and groups that of earlier groups; of variants and
    /// entries the first stays where it is and gets what the last one says. Hotkeys of older forms
    /// are converted.
    void settle();

    /// The names of everything, of what it has and of what it refers to.
    QSet<QString> allNames() const;

    std::vector<qxDocumentGroup> groups; ///< in their order
    std::vector<qxDocumentSet>
        sets; ///< settled: those of the first group, and so on, then the rest
    std::vector<qxDocumentVariant> variants; ///< settled: kind by kind
    bool isWhole = true; ///< false when the text was not well-formed
};

/// One of the clipping settings of a set.
struct qxClippingField {
    QString attribute; ///< its name in the document
    bool isReal; ///< whether it is a number with a fraction, else a whole one or a flag
    QString (*text)(const qxAnalyzerVariant &clipping); ///< as a document holds it
    void (*assign)(qxAnalyzerVariant &clipping, const QString &text); ///< 0 for what is no number
    /// Whether two settings have the same value.
    bool (*isSame)(const qxAnalyzerVariant &one, const qxAnalyzerVariant &other);

    /// All of them in the order of the document.
    static const std::vector<qxClippingField> &all();
};
