#include "qxProgress.h"

#include "Core/qxVisibleText.h"
#include "Pictures/qxPictureProgress.h"
#include "Session/qxInterrupt.h"
#include "qxOutput.h"
#include "qxText.h"

#include <cstdio>
#include <unistd.h>

namespace {

constexpr int BarWidth = 24;
constexpr int NameWidth = 40;
constexpr int RedrawMilliseconds = 50;

} // namespace

qxProgress::qxProgress(int total) : m_total(total), m_isTerminal(isatty(STDERR_FILENO) != 0)
{
    m_sinceDrawn.start();
    qxPictureProgress::setDisplay([this](double share) { return show(share); });
}

qxProgress::~qxProgress()
{
    qxPictureProgress::setDisplay({});
    if (m_isTerminal)
        wipe();
}

void qxProgress::begin(const QString &name)
{
    ++m_begun;
    m_name = qxVisibleText::line(name.simplified());
    if (m_isTerminal)
        draw(0);
    else
        qxOutput::note(QStringLiteral("%1/%2 %3").arg(m_begun).arg(m_total).arg(m_name));
}

bool qxProgress::show(double share)
{
    if (m_isTerminal && m_sinceDrawn.elapsed() >= RedrawMilliseconds) {
        draw(share);
        m_sinceDrawn.restart();
    }
    return !qxInterrupt::isAsked();
}

void qxProgress::draw(double share) const
{
    const double done = m_total > 0 ? (m_begun - 1 + share) / m_total : 1;
    const QString bar(int(done * BarWidth), QLatin1Char('#'));
    const QString line = QStringLiteral("[%1] %2/%3 %4")
                             .arg(bar.leftJustified(BarWidth, QLatin1Char('.')))
                             .arg(m_begun)
                             .arg(m_total)
                             .arg(m_name.left(NameWidth));
    wipe();
    fputs(qxText::toUtf8(line).c_str(), stderr);
}

void qxProgress::wipe() const
{
    fputs("\r\x1b[K", stderr);
}
