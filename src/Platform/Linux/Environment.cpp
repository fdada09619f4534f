#include "Platform/Linux/Environment.h"

QHash<QByteArray, QByteArray> Environment::variables(QByteArrayView environment,
                                                     const QByteArrayList& names) {
    QHash<QByteArray, QByteArray> found;
    while (!environment.isEmpty()) {
        const qsizetype end = environment.indexOf('\0');
        const QByteArrayView entry = end < 0 ? environment : environment.first(end);
        environment = end < 0 ? QByteArrayView() : environment.sliced(end + 1);
        for (const QByteArray& name : names) {
            const bool isNamed =
                entry.size() > name.size() && entry[name.size()] == '=' && entry.startsWith(name);
            if (isNamed && !found.contains(name))
                found.insert(name, entry.sliced(name.size() + 1).toByteArray());
        }
    }
    return found;
}
