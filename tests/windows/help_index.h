#pragma once

#include "platform/qt/help_viewer.h"

#include <QHelpEngineCore>
#include <QHelpLink>

namespace corvanta {

// Whether the index of the help holds a caption or label, whatever marks its letter or ends it.
inline bool inHelpIndex(QString caption)
{
    static QHelpEngineCore engine(helpCollection());
    static const bool ready = engine.setupData();
    caption.remove('&').remove("...");
    while (caption.endsWith(':') || caption.endsWith(' '))
        caption.chop(1);
    for (const QString &spelling : {caption, caption.toLower(), caption.left(1).toUpper() + caption.mid(1).toLower()})
        if (ready && !engine.documentsForKeyword(spelling).isEmpty())
            return true;
    return false;
}

} // namespace corvanta
