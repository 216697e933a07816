#include "Report/qxOutput.h"
#include "qxCommandTable.h"
#include "qxValueKind.h"

#include <QCommandLineParser>

namespace {

/// What does not depend on the commands. Where it finds nothing for a file, such as behind a
/// quotation mark, bash's own completion of files goes on.
const char functions[] = R"(# bash completion for workbench, made by "workbench completion"

_workbench_words() {
    compopt +o default 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$word")
}

# Words with commas between.
_workbench_list() {
    compopt +o default -o nospace 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -P "${word%"${word##*,}"}" -W "$1" -- "${word##*,}")
}

# Folders, and files that end in one of these.
_workbench_files() {
    local name
    compopt -o filenames 2>/dev/null
    while IFS= read -r name; do
        [[ -d ${name/#~/$HOME} || ${name,,} =~ \.($1)$ ]] && COMPREPLY+=("$name")
    done < <(compgen -f -- "$word")
}

_workbench() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]} place=0 i
    COMPREPLY=()
    # "--save=OUT" comes as three words.
    if [[ $word == = ]]; then
        word=
    elif [[ $before == = ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
)";

/// Any word will do: there is nothing to complete, and files would mislead.
const char nothing[] = "compopt +o default 2>/dev/null";

/// How the shell completes a value that help calls like this.
QString actionFor(const qxValueKind &kind, const QString &name)
{
    const auto call = [](const char *function, const QString &words) {
        return QStringLiteral("_workbench_%1 '%2'").arg(QLatin1String(function), words);
    };
    if (kind.place == qxValueKind::File || kind.place == qxValueKind::FileOrFolder)
        return call("files", QLatin1String(kind.suffixes));
    if (kind.place == qxValueKind::Folder)
        return call("files", QStringLiteral("/"));
    if (kind.name == QLatin1String("COMMAND"))
        return QStringLiteral("_workbench_words \"$commands\"");
    if (name.contains(QLatin1Char(',')))
        return call("list", QString(name).replace(QLatin1Char(','), QLatin1Char(' ')));
    if (name.contains(QLatin1Char('|')))
        return call("words", QString(name).replace(QLatin1Char('|'), QLatin1Char(' ')));
    return QLatin1String(nothing);
}

/// A branch of one of the cases below.
QString branch(const QString &pattern, const QString &action)
{
    return QStringLiteral("        %1) %2 ;;\n").arg(pattern, action);
}

QString text()
{
    QStringList names;
    QStringList valued;
    QString values;
    QString options;
    QString arguments;
    for (const qxCommand *command : qxCommands::all()) {
        const QString name = QLatin1String(command->name);
        names += name;
        QStringList words;
        for (const QCommandLineOption &option : qxCommands::optionsOf(*command)) {
            const QString word = QLatin1String("--") + option.names().last();
            words += word;
            if (option.valueName().isEmpty())
                continue;
            valued += name + QLatin1Char(':') + word;
            values += branch(valued.last(),
                             actionFor(qxValueKinds::of(option.valueName()), option.valueName())
                                 + QLatin1String("; return"));
        }
        options += branch(name, QStringLiteral("_workbench_words '%1'").arg(words.join(' ')));
        const QStringList places = qxCommands::argumentsOf(*command);
        for (int i = 0; i < places.size(); ++i) {
            const QString action =
                actionFor(qxValueKinds::ofArgument(*command, places[i]), places[i]);
            if (action != QLatin1String(nothing))
                arguments += branch(QStringLiteral("%1:%2").arg(name).arg(i), action);
        }
    }
    return QString::fromUtf8(functions)
        + QStringLiteral(R"(    local commands='%1'
    if ((COMP_CWORD == 1)); then
        _workbench_files 'gltf|glb'
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -W "$commands --help --version" -- "$word")
        return
    fi
    for ((i = 2; i < COMP_CWORD; ++i)); do
        case $command:${COMP_WORDS[i]} in
        %2) [[ ${COMP_WORDS[i + 1]} == = ]] && ((++i)); ((++i)) ;;
        *:-?*) ;;
        *) ((++place)) ;;
        esac
    done
    case $command:$before in
%3    esac
    if [[ $word == -* ]]; then
        case $command in
%4        esac
        return
    fi
    case $command:$place in
%5        *) %6 ;;
    esac
}

complete -o default -F _workbench workbench
)")
              .arg(names.join(' '), valued.join(QLatin1Char('|')), values, options, arguments,
                   QLatin1String(nothing));
}

QList<QCommandLineOption> completionOptions()
{
    return {};
}

int runCompletion(const QCommandLineParser &)
{
    qxOutput::text(text());
    return Success;
}

} // namespace

const qxCommand qxCommands::completion = {
    "completion",
    "",
    "Prints what completes these commands in bash.",
    0,
    0,
    completionOptions,
    runCompletion,
    "Put it where bash looks for completions, or read it with \"source\"."};
