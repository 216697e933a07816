#pragma once

#include <QString>

#include <vector>

/// What a text in the script of a set stands for.
enum class qxScriptNamed {
    Nothing, ///< nobody can tell: it is no argument of ours, or put together from several
    Set,
    Group,
    Variant, ///< of the kind `of`
    Node,
    Path, ///< of a node
    Material,
    NodeState, ///< of the variant of the node `of`
    MaterialState, ///< of the variant of the material `of`
    LightState,
    Viewpoint,
    Other ///< an argument of ours that names nothing of the document
};

/// A text in quotes in a Python source.
struct qxScriptLiteral {
    qxScriptNamed named; ///< what it stands for
    QString text; ///< what is between the quotes, as it is written there
    QString of; ///< see qxScriptNamed; empty when it is not known
    int line; ///< from 1 on
    int begin; ///< the place of its first character, the prefix if it has one
    int length; ///< with prefix and quotes
};

/// Finds what scripts name. Reads Python, 2.7 and 3, without running it; a source that does not
/// compile gives what can be told.
namespace qxScriptLiterals {

/// All texts in quotes, in their order. Those in comments are left out.
std::vector<qxScriptLiteral> of(const QString &script);
/// The text in quotes that stands for `text`, in the form of `written`, prefix and quotes included.
QString quoted(const QString &written, const QString &text);
/// Whether `name` stands in the text by itself, not as a part of a longer word.
bool mentions(const QString &text, const QString &name);

} // namespace qxScriptLiterals
