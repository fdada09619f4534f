#pragma once

#include <QHash>
#include <QString>

/// Returns the models that each file of a folder "blobs" of Ollama is a part of, by its name: "llama3:8b",
/// several separated by ", ". The folder "manifests" beside it tells; without it the result is empty.
QHash<QString, QString> ollamaModels(const QString& blobsFolder);
