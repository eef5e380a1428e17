// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/ovte/filelist.h"

#include "hostlibs/ovte/filelistlexer.h"
#include "hostlibs/ovte/librarysearch.h"
#include "hostlibs/ovte/project.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace TE {

/// Deeper nesting is a list that names itself in a roundabout way.
constexpr int DeepestNesting = 64;

namespace {

class FileListReader
{
public:
    FileListReader(const QString &path, FileList *list)
        : m_outermost(QFileInfo(path).absolutePath())
        , m_list(list)
    {
    }

    QString error() const { return m_error; }

    bool read(const QString &path);
    void takeLibraries();

private:
    /// A list that is being read.
    struct Source
    {
        QString path;
        QDir base; ///< where relative paths start
        QList<FileListWord> words;
        int at = 0;
    };

    bool readSource(Source &source);
    bool takeOption(Source &source, const FileListWord &word);
    void takePlusOption(Source &source, const FileListWord &word);
    bool takeArgument(Source &source, const FileListWord &word, const QString &option, QString *argument);
    bool takeFlag(const FileListWord &word);
    bool takeNested(Source &source, const FileListWord &option, const QString &path);
    void takeFile(const Source &source, const FileListWord &word);
    void addLibraryDir(const Source &source, const FileListWord &word, const QString &path);
    void apply(Source &source, const FileListWord &word, const QString &option, const QString &argument);

    QString resolve(const Source &source, const QString &path) const;
    QString place(const Source &source, int line) const;
    bool fail(const Source &source, int line, const QString &what);
    void note(const Source &source, int line, const QString &what) { m_list->notes.append(place(source, line) + what); }
    void addIncludePath(const QString &path);
    void addDefine(const QString &define);
    void addSource(const QString &path, QList<DesignFile> *files) const;

    QDir m_outermost;
    FileList *m_list;
    QStringList m_open; ///< the lists being read, outermost first
    QStringList m_libraryFiles;
    QList<QDir> m_libraryDirs;
    QStringList m_librarySuffixes = {".v", ".sv"};
    bool m_isSystemVerilog = false;
    QString m_error;
};

QString FileListReader::place(const Source &source, int line) const
{
    return QString("%1:%2: ").arg(QDir::toNativeSeparators(source.path)).arg(line);
}

bool FileListReader::fail(const Source &source, int line, const QString &what)
{
    m_error = place(source, line) + what;
    return false;
}

QString FileListReader::resolve(const Source &source, const QString &path) const
{
    const QString fromBase = QDir::cleanPath(source.base.absoluteFilePath(path));
    const QString fromList = QDir::cleanPath(QFileInfo(source.path).absoluteDir().absoluteFilePath(path));
    return !QFileInfo::exists(fromBase) && QFileInfo::exists(fromList) ? fromList : fromBase;
}

bool FileListReader::read(const QString &path)
{
    Source source;
    source.path = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    source.base = m_outermost;
    return readSource(source);
}

bool FileListReader::readSource(Source &source)
{
    QFile file(source.path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_error = QString("%1: %2. Check the path and the permissions.")
                      .arg(QDir::toNativeSeparators(source.path), file.errorString());
        return false;
    }
    int errorLine = 0;
    QString lexicalError;
    if (!splitFileList(QString::fromUtf8(file.readAll()), &source.words, &errorLine, &lexicalError))
        return fail(source, errorLine, lexicalError);
    m_open.append(source.path);
    bool ok = true;
    while (ok && source.at < source.words.size()) {
        const FileListWord word = source.words.at(source.at++);
        if (word.text.startsWith('+'))
            takePlusOption(source, word);
        else if (word.text.startsWith('-'))
            ok = takeOption(source, word);
        else
            takeFile(source, word);
    }
    m_open.removeLast();
    return ok;
}

void FileListReader::takePlusOption(Source &source, const FileListWord &word)
{
    QStringList parts = word.text.split('+', Qt::SkipEmptyParts);
    const QString option = parts.isEmpty() ? QString() : parts.takeFirst();
    if (option == "incdir") {
        for (const QString &path : qAsConst(parts))
            addIncludePath(resolve(source, path));
    } else if (option == "define") {
        for (const QString &define : qAsConst(parts))
            addDefine(define);
    } else if (option == "libext") {
        m_librarySuffixes += parts;
        m_librarySuffixes.removeDuplicates();
    } else {
        note(source, word.line, QString("the option \"%1\" is not used.").arg(word.text));
    }
}

/// The argument of `option`: what follows in the same word, or else the next word.
bool FileListReader::takeArgument(Source &source, const FileListWord &word, const QString &option, QString *argument)
{
    *argument = word.text.mid(option.size());
    if (!argument->isEmpty())
        return true;
    if (source.at >= source.words.size())
        return fail(source, word.line, QString("after \"%1\" a value is missing.").arg(word.text));
    *argument = source.words.at(source.at++).text;
    return true;
}

bool FileListReader::takeFlag(const FileListWord &word)
{
    if (word.text != "-sv" && word.text != "--sv" && word.text != "-sverilog")
        return false;
    m_isSystemVerilog = true;
    return true;
}

bool FileListReader::takeOption(Source &source, const FileListWord &word)
{
    static const QStringList whole = {"-f", "-F", "-v", "-y", "-top", "--top", "--top-module"};
    static const QStringList prefixes = {"-I", "-D"};
    // Options that a design does not need, but whose argument must not be taken for a file.
    static const QStringList unused = {"-l", "-o", "-timescale", "-work", "-L", "-log"};
    if (takeFlag(word))
        return true;
    const auto prefix = std::find_if(prefixes.cbegin(), prefixes.cend(),
                                     [&](const QString &option) { return word.text.startsWith(option); });
    QString argument;
    if (prefix == prefixes.cend() && !whole.contains(word.text)) {
        note(source, word.line, QString("the option \"%1\" is not used.").arg(word.text));
        return !unused.contains(word.text) || takeArgument(source, word, word.text, &argument);
    }
    const QString option = prefix == prefixes.cend() ? word.text : *prefix;
    if (!takeArgument(source, word, option, &argument))
        return false;
    if (option == "-f" || option == "-F")
        return takeNested(source, word, argument);
    apply(source, word, option, argument);
    return true;
}

void FileListReader::apply(Source &source, const FileListWord &word, const QString &option, const QString &argument)
{
    if (option == "-I")
        addIncludePath(resolve(source, argument));
    else if (option == "-D")
        addDefine(argument);
    else if (option == "-y")
        addLibraryDir(source, word, argument);
    else if (option != "-v")
        m_list->topModule = argument;
    else if (QFileInfo(resolve(source, argument)).isFile())
        m_libraryFiles.append(resolve(source, argument));
    else
        note(source, word.line, QString("the library file \"%1\" does not exist; check the path.").arg(argument));
}

bool FileListReader::takeNested(Source &source, const FileListWord &option, const QString &path)
{
    Source nested;
    nested.path = resolve(source, path);
    nested.base = option.text == "-F" ? QFileInfo(nested.path).absoluteDir() : source.base;
    if (m_open.contains(nested.path) || m_open.size() >= DeepestNesting)
        return fail(source, option.line, QString("the file list \"%1\" names itself; remove this line.").arg(path));
    if (!QFileInfo(nested.path).isFile()) {
        return fail(source, option.line,
                    QString("there is no file list \"%1\"; check the path, which starts at \"%2\".")
                        .arg(path, QDir::toNativeSeparators(source.base.absolutePath())));
    }
    return readSource(nested);
}

void FileListReader::takeFile(const Source &source, const FileListWord &word)
{
    const QString path = resolve(source, word.text);
    if (QFileInfo(path).isFile()) {
        addSource(path, &m_list->files);
        return;
    }
    note(source, word.line,
         QString("there is no file \"%1\"; check the path, which starts at \"%2\".")
             .arg(word.text, QDir::toNativeSeparators(source.base.absolutePath())));
}

void FileListReader::addLibraryDir(const Source &source, const FileListWord &word, const QString &path)
{
    const QDir dir(resolve(source, path));
    if (dir.exists())
        m_libraryDirs.append(dir);
    else
        note(source, word.line, QString("the library folder \"%1\" does not exist; check the path.").arg(path));
}

void FileListReader::addIncludePath(const QString &path)
{
    if (!m_list->includePaths.contains(path))
        m_list->includePaths.append(path);
}

void FileListReader::addDefine(const QString &define)
{
    if (!m_list->defines.contains(define))
        m_list->defines.append(define);
}

void FileListReader::addSource(const QString &path, QList<DesignFile> *files) const
{
    const auto isSame = [&path](const DesignFile &other) { return other.path == path; };
    if (std::any_of(files->cbegin(), files->cend(), isSame))
        return;
    DesignFile file;
    file.path = path;
    file.type = fileTypeOfPath(path);
    // What a Verilog file list names is Verilog, however it is spelled.
    if (file.type == OtherFile)
        file.type = VerilogFile;
    if (file.type == VerilogFile && m_isSystemVerilog)
        file.type = SystemVerilogFile;
    file.enabled = true;
    files->append(file);
}

void FileListReader::takeLibraries()
{
    QStringList sources;
    for (const DesignFile &file : qAsConst(m_list->files))
        sources.append(file.path);
    QStringList candidates = m_libraryFiles;
    QStringList patterns;
    for (const QString &suffix : qAsConst(m_librarySuffixes))
        patterns.append('*' + suffix);
    for (const QDir &dir : qAsConst(m_libraryDirs)) {
        for (const QString &name : dir.entryList(patterns, QDir::Files, QDir::Name))
            candidates.append(QDir::cleanPath(dir.absoluteFilePath(name)));
    }
    candidates.removeDuplicates();
    for (const QString &path : neededLibraryFiles(sources, candidates))
        addSource(path, &m_list->files);
}

} // namespace

bool readFileList(const QString &path, FileList *list, QString *error)
{
    FileList result;
    FileListReader reader(path, &result);
    if (!reader.read(path)) {
        *error = reader.error();
        return false;
    }
    reader.takeLibraries();
    *list = result;
    return true;
}

} // namespace TE
