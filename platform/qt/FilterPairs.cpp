#include "platform/qt/FilterPairs.h"

namespace ostrelum::qt_platform {

QStringList name_filters(const std::string& pairs)
{
    const QStringList parts = QString::fromStdString(pairs).split(QChar(u'\0'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size() && !parts[i + 1].isEmpty(); i += 2) {
        QString label = parts[i];
        QString pattern = parts[i + 1];
        // The dialog adds the pattern itself.
        const QString tail = " (" + pattern + ")";
        if (label.endsWith(tail))
            label.chop(tail.size());
        filters << label + " (" + pattern.replace(u';', u' ') + ")";
    }
    return filters;
}

} // namespace ostrelum::qt_platform
