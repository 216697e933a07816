// A hotkey's text, of any age: it is taken apart without harm, and once converted it stays as it
// is.

#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantSetPtr.h"
#include "qxVariants.h"

#include "FuzzHost.h"

#include <QKeySequence>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    FuzzHost::start();
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    const QString converted = qxVariantReader::convertOldHotkey(text);
    FuzzHost::require(qxVariantReader::convertOldHotkey(converted) == converted,
                      "a converted hotkey is converted again");
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    qxVariants::mapHotkey(converted, key, modifiers);
    FuzzHost::require((key & int(Qt::KeyboardModifierMask)) == 0, "a modifier is left in a key");

    qxVariantSet set(QStringLiteral("Set"));
    qxVariantSetPtr handle(&set);
    handle.setHotkeyString(converted.toUtf8().constData());
    FuzzHost::require(handle.getHotkey() == set.hotkey.toStdString(), "a hotkey is kept otherwise");
    set.updateShortcut();
    FuzzHost::require(set.key == key || set.hotkey != converted, "a set has another key");
    handle.setHotkey(key, int(modifiers));
    set.updateShortcut();
    return 0;
}
