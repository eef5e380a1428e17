// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/ovte/projectfile.h"

#include "hostlibs/ovte/jsonlines.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

namespace TE {

constexpr int FormatVersion = 1;
constexpr qint64 LargestFile = 64 * 1024 * 1024;

namespace Key {
constexpr char Version[] = "vakproj";
constexpr char Device[] = "device";
constexpr char Package[] = "package";
constexpr char Top[] = "top";
constexpr char Standard[] = "standard";
constexpr char SynthesisTool[] = "synthesisTool";
constexpr char IncludePaths[] = "includePaths";
constexpr char Defines[] = "defines";
constexpr char Files[] = "files";
constexpr char Path[] = "path";
constexpr char Type[] = "type";
constexpr char Enabled[] = "enabled";
constexpr char Library[] = "library";
} // namespace Key

namespace {

/// Takes values out of a parsed project file; the first thing that is wrong stays as the error.
class Reader
{
public:
    Reader(const QString &fileName, const QByteArray &text)
        : m_fileName(fileName)
        , m_text(text)
    {
    }

    QString error() const { return m_error; }

    bool fail(int line, const QString &what)
    {
        if (m_error.isEmpty())
            m_error = QString("%1:%2: %3").arg(QDir::toNativeSeparators(m_fileName), QString::number(line), what);
        return false;
    }

    bool failAt(const QStringList &path, const QString &what) { return fail(lineOfJsonValue(m_text, path), what); }

    /// Removes `key` from `object` and answers its string; `fallback` when it is not there.
    QString takeString(QJsonObject &object, const QStringList &where, const char *key, const QString &fallback = {})
    {
        const QJsonValue value = object.take(QLatin1String(key));
        if (!value.isUndefined() && !value.isString())
            failAt(where + QStringList(key), QString("\"%1\" must be a text in quotes.").arg(key));
        return value.toString(fallback);
    }

    bool takeBool(QJsonObject &object, const QStringList &where, const char *key, bool fallback)
    {
        const QJsonValue value = object.take(QLatin1String(key));
        if (!value.isUndefined() && !value.isBool())
            failAt(where + QStringList(key), QString("\"%1\" must be true or false.").arg(key));
        return value.toBool(fallback);
    }

    QJsonArray takeArray(QJsonObject &object, const char *key)
    {
        const QJsonValue value = object.take(QLatin1String(key));
        if (!value.isUndefined() && !value.isArray())
            failAt({key}, QString("\"%1\" must be a list in square brackets.").arg(key));
        return value.toArray();
    }

    QStringList takeStrings(QJsonObject &object, const char *key)
    {
        QStringList result;
        const QJsonArray array = takeArray(object, key);
        for (int i = 0; i < array.size(); ++i) {
            if (!array.at(i).isString())
                failAt({key, QString::number(i)}, QString("\"%1\" must hold texts in quotes.").arg(key));
            result.append(array.at(i).toString());
        }
        return result;
    }

    /// A string that must be one of `offered`.
    QString takeChoice(QJsonObject &object, const char *key, const QStringList &offered, const QString &fallback)
    {
        const QString value = takeString(object, {}, key, fallback);
        if (!offered.contains(value)) {
            failAt({key}, QString("\"%1\" is \"%2\"; it must be one of \"%3\".")
                              .arg(QString(key), value, offered.join("\", \"")));
        }
        return value;
    }

private:
    QString m_fileName;
    QByteArray m_text;
    QString m_error;
};

} // namespace

static QStringList fileTypeNames()
{
    QStringList names;
    for (const int type : fileTypes())
        names.append(fileTypeName(type));
    return names;
}

static void takeFile(Reader &reader, const QJsonValue &value, int index, const QDir &folder, Project &project)
{
    const QStringList where = {Key::Files, QString::number(index)};
    if (!value.isObject()) {
        reader.failAt(where, "a file must be given as { \"path\": \"...\" }.");
        return;
    }
    QJsonObject object = value.toObject();
    const QString path = reader.takeString(object, where, Key::Path);
    if (path.isEmpty()) {
        reader.failAt(where, "a file needs a \"path\".");
        return;
    }
    DesignFile file;
    file.path = QDir::cleanPath(folder.absoluteFilePath(path));
    const QString typeName = reader.takeString(object, where, Key::Type, fileTypeName(fileTypeOfPath(path)));
    file.type = fileTypeFromName(typeName);
    if (file.type < 0) {
        reader.failAt(where + QStringList(Key::Type), QString("the type \"%1\" is not known; it must be one of \"%2\".")
                                                          .arg(typeName, fileTypeNames().join("\", \"")));
    }
    file.enabled = reader.takeBool(object, where, Key::Enabled, true);
    file.library = reader.takeString(object, where, Key::Library);
    const bool isTwice = std::any_of(project.files.cbegin(), project.files.cend(),
                                     [&](const DesignFile &other) { return other.path == file.path; });
    if (isTwice)
        reader.failAt(where, QString("\"%1\" is listed twice; remove one of the two lines.").arg(path));
    project.files.append(file);
    if (!object.isEmpty())
        project.foreignOfFiles.insert(file.path, object);
}

static bool takeVersion(Reader &reader, QJsonObject &root)
{
    const QJsonValue version = root.take(QLatin1String(Key::Version));
    if (!version.isDouble())
        return reader.fail(1, "this is not a project file: \"vakproj\": 1 is missing.");
    if (version.toDouble() == FormatVersion)
        return true;
    return reader.failAt({Key::Version}, QString("the project has version %1, this program reads version %2; "
                                                 "open it with a newer version of the program.")
                                             .arg(version.toDouble())
                                             .arg(FormatVersion));
}

static Project takeProject(Reader &reader, QJsonObject root, const QDir &folder)
{
    Project project;
    if (!takeVersion(reader, root))
        return project;
    project.device.name = reader.takeString(root, {}, Key::Device);
    project.device.package = reader.takeString(root, {}, Key::Package);
    project.topModule = reader.takeString(root, {}, Key::Top);
    project.verilogStandard = reader.takeChoice(root, Key::Standard, verilogStandards(), project.verilogStandard);
    project.synthesisTool = reader.takeChoice(root, Key::SynthesisTool, synthesisTools(), project.synthesisTool);
    project.includePaths = reader.takeStrings(root, Key::IncludePaths);
    project.defines = reader.takeStrings(root, Key::Defines);
    const QJsonArray files = reader.takeArray(root, Key::Files);
    for (int i = 0; i < files.size(); ++i)
        takeFile(reader, files.at(i), i, folder, project);
    project.foreign = root;
    return project;
}

static bool readBytes(const QString &path, QByteArray *bytes, QString *error)
{
    QFile file(path);
    const QString name = QDir::toNativeSeparators(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QString("%1: %2. Check the path and the permissions.").arg(name, file.errorString());
        return false;
    }
    if (file.size() > LargestFile) {
        *error = QString("%1: the file is larger than 64 MiB; this is not a project file.").arg(name);
        return false;
    }
    *bytes = file.readAll();
    return true;
}

bool readProjectFile(const QString &path, Project *project, QString *error)
{
    QByteArray text;
    if (!readBytes(path, &text, error))
        return false;
    Reader reader(path, text);
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    if (document.isNull())
        reader.fail(lineOfOffset(text, parseError.offset), parseError.errorString() + ".");
    else if (!document.isObject())
        reader.fail(1, "this is not a project file: \"vakproj\": 1 is missing.");
    Project result;
    if (reader.error().isEmpty())
        result = takeProject(reader, document.object(), QFileInfo(path).absoluteDir());
    if (!reader.error().isEmpty()) {
        *error = reader.error();
        return false;
    }
    *project = result;
    return true;
}

/// The value as JSON text on one line.
static QByteArray compact(const QJsonValue &value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

static QByteArray member(const char *key, const QJsonValue &value)
{
    return QByteArray("\"") + key + "\": " + compact(value);
}

/// Members that this program does not know, in the order of their names.
static QByteArrayList foreignMembers(const QJsonObject &object)
{
    QByteArrayList result;
    for (auto it = object.begin(); it != object.end(); ++it)
        result.append(compact(it.key()) + ": " + compact(it.value()));
    return result;
}

static QByteArray listMember(const char *key, const QByteArrayList &values)
{
    const QByteArray opening = QByteArray("\"") + key + "\": [";
    return values.isEmpty() ? opening + "]" : opening + "\n    " + values.join(",\n    ") + "\n  ]";
}

static QByteArrayList texts(const QStringList &list)
{
    QByteArrayList result;
    for (const QString &text : list)
        result.append(compact(text));
    return result;
}

static QByteArray fileMember(const DesignFile &file, const QJsonObject &foreign, const QDir &folder)
{
    const QByteArrayList members =
        QByteArrayList{
            member(Key::Path, folder.relativeFilePath(file.path)),
            member(Key::Type, fileTypeName(file.type)),
            member(Key::Enabled, file.enabled),
            member(Key::Library, file.library),
        } +
        foreignMembers(foreign);
    return "{ " + members.join(", ") + " }";
}

QByteArray projectFileContents(const Project &project, const QString &folder)
{
    QByteArrayList files;
    for (const DesignFile &file : project.files)
        files.append(fileMember(file, project.foreignOfFiles.value(file.path), QDir(folder)));
    const QByteArrayList members =
        QByteArrayList{
            member(Key::Version, FormatVersion),
            member(Key::Device, project.device.name),
            member(Key::Package, project.device.package),
            member(Key::Top, project.topModule),
            member(Key::Standard, project.verilogStandard),
            member(Key::SynthesisTool, project.synthesisTool),
            listMember(Key::IncludePaths, texts(project.includePaths)),
            listMember(Key::Defines, texts(project.defines)),
            listMember(Key::Files, files),
        } +
        foreignMembers(project.foreign);
    return "{\n  " + members.join(",\n  ") + "\n}\n";
}

bool writeProjectFile(const Project &project, const QString &path, QString *error)
{
    const QByteArray contents = projectFileContents(project, QFileInfo(path).absolutePath());
    QFile old(path);
    if (old.open(QIODevice::ReadOnly) && old.readAll() == contents)
        return true;
    old.close();
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.commit())
        return true;
    *error = QString("%1: %2. The project was not saved; check that the folder exists and may be written.")
                 .arg(QDir::toNativeSeparators(path), file.errorString());
    return false;
}

} // namespace TE
