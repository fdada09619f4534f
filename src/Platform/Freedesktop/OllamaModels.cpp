#include "Platform/Freedesktop/OllamaModels.h"

#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxManifestBytes = 1 << 20;
constexpr int maxManifests = 10000;

/// Returns the name that a person gives Ollama for "HOST/OWNER/MODEL/TAG".
QString modelName(const QString& path) {
    const auto own = "registry.ollama.ai/"_L1;
    const auto library = "library/"_L1;
    QString name = path.startsWith(own) ? path.mid(own.size()) : path;
    if (name.startsWith(library))
        name.remove(0, library.size());
    const qsizetype tag = name.lastIndexOf(u'/');
    return tag < 0 ? name : name.replace(tag, 1, u':');
}

/// Returns the names of the files that the manifest lists: "sha256:…" is "sha256-…" there.
QStringList filesOf(const QString& manifest) {
    QFile file(manifest);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject parts = QJsonDocument::fromJson(file.read(maxManifestBytes)).object();
    QJsonArray all = parts[u"layers"_s].toArray();
    all.append(parts[u"config"_s]);
    QStringList names;
    for (const auto& part : std::as_const(all))
        names.append(part[u"digest"_s].toString().replace(u':', u'-'));
    names.removeAll({});
    names.removeDuplicates();
    return names;
}

} // namespace

QHash<QString, QString> ollamaModels(const QString& blobsFolder) {
    QHash<QString, QString> models;
    const auto blobs = "/blobs"_L1;
    if (!blobsFolder.endsWith(blobs))
        return models;
    const QString manifests = blobsFolder.chopped(blobs.size()) + u"/manifests/"_s;
    QDirIterator entries(manifests, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    QStringList paths;
    while (paths.size() < maxManifests && entries.hasNext())
        paths.append(entries.next());
    paths.sort();
    for (const QString& path : std::as_const(paths)) {
        for (const QString& file : filesOf(path)) {
            QString& names = models[file];
            names += (names.isEmpty() ? QString() : u", "_s) + modelName(path.mid(manifests.size()));
        }
    }
    return models;
}
