#include "qxLog.h"

#include "Core/qxCallList.h"
#include "Core/qxVisibleText.h"
#include "qxText.h"

#include <cstdarg>
#include <cstdio>

namespace {

qxCallList<qxLog::Listener> &logListeners()
{
    static qxCallList<qxLog::Listener> listeners;
    return listeners;
}

std::string format(const char *text, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, text, arguments);
    std::string line(std::size_t(length > 0 ? length : 0), '\0');
    if (length > 0)
        std::vsnprintf(&line[0], line.size() + 1, text, again);
    va_end(again);
    if (!line.empty() && line.back() == '\n')
        line.pop_back();
    return line;
}

void write(qxLog::Level level, const std::string &line)
{
    static const char *const prefixes[] = {"", "warning: ", "error: "};
    const QByteArray shown = qxVisibleText::lines(qxText::fromUtf8(line)).toUtf8();
    std::fprintf(stderr, "%s%s\n", prefixes[level], shown.constData());
    logListeners().run([&](const qxLog::Listener &listener) { listener(level, line); });
}

} // namespace

void qxLog::info(const char *text, ...)
{
    va_list arguments;
    va_start(arguments, text);
    write(Info, ::format(text, arguments));
    va_end(arguments);
}

void qxLog::warning(const char *text, ...)
{
    va_list arguments;
    va_start(arguments, text);
    write(Warning, ::format(text, arguments));
    va_end(arguments);
}

void qxLog::error(const char *text, ...)
{
    va_list arguments;
    va_start(arguments, text);
    write(Error, ::format(text, arguments));
    va_end(arguments);
}

int qxLog::addListener(const Listener &listener)
{
    return logListeners().add(listener);
}

void qxLog::removeListener(int id)
{
    logListeners().remove(id);
}
