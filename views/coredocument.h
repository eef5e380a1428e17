// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "views/corelist.h"
#include "views/inserterdocument.h"

#include "rules/netsearch.h"

#include <netcatcher/rtlnetlist.h>

#include <QFileSystemWatcher>
#include <QList>
#include <QPointer>

#include <memory>
#include <utility>

namespace RTLVAK::private_impl {

/// What the private objects of the views do with their cores and pages in the same way, whatever kind of core it is.
///
/// Holds no data either: `Private` derives from it and has the members `q`, `filePath`, `cores`, `netlist`,
/// `searchIndex`, `widgets`, `modified`, `notifyModified`, `watcher`, `fileChangePending` and `netlistReadRunning`.
template <class Private, class Core, class Page>
class CoreDocument : public InserterDocument
{
public:
    /// Deletes the pages without hearing them any more; for the end of the view.
    void deletePages()
    {
        const QList<Page *> pages = self().q->template findChildren<Page *>(); // added ones too
        for (Page *page : pages)
            page->disconnect(self().q); // a page that loses the focus while it dies emits
        qDeleteAll(self().widgets);
        self().widgets.clear();
    }

    /// Adds a core, if there is room for one, and marks the document as edited.
    void addCore(int number)
    {
        if (!roomForCore(self().q, self().cores.size()))
            return;
        self().cores.append(new Core(number));
        logNumbers(self().cores);
        addPage(self().cores.constLast());
        coreAdded(number);
        self().q->onModified();
    }

    /// Removes the core in `row` after the user has agreed, and renumbers the others.
    void removeCore(int row)
    {
        const QPointer<Page> page = self().widgets.value(row);
        if (!removalConfirmed(self().q, self().cores.size(), row) || !page)
            return; // a reload of the file ends pages also while the question is open
        self().widgets.removeOne(page);
        Core *core = page->core();
        takePage(page);
        delete page;
        self().cores.removeOne(core);
        delete core;
        renumber(self().cores);
        qDebug("before changed");
        logNumbers(self().cores);
        qDebug("after changed");
        logNumbers(self().cores);
        self().q->onModified();
    }

protected:
    VakInserterView *view() const override { return self().q; }
    QFileSystemWatcher *fileWatcher() const override { return self().watcher; }
    NETCATCHER::RtlNetlist *currentNetlist() const override { return self().netlist; }
    QString &path() override { return self().filePath; }
    bool &modifiedFlag() override { return self().modified; }
    bool &fileChangeFlag() override { return self().fileChangePending; }
    bool &netlistReadFlag() override { return self().netlistReadRunning; }
    void notify(bool isModified) override { self().notifyModified(isModified); }

    bool readCores(QString *errorString) override
    {
        bool ok = false;
        const QList<Core *> read = readFile(&ok, errorString);
        if (!ok) {
            qDeleteAll(read);
            return false;
        }
        dropCores();
        self().cores = read;
        for (Core *core : read)
            addPage(core);
        if (read.isEmpty())
            addCore(0);
        if (self().netlist)
            handOverNetlist(); // so that signals that it does not know show as gone
        return true;
    }

    void applyPages() override
    {
        for (Page *page : qAsConst(self().widgets))
            page->applyToCore();
    }

    void setModuleName(const QString &name) override
    {
        for (Core *core : qAsConst(self().cores))
            core->setModuleName(name);
    }

    void setNetlist(std::unique_ptr<NETCATCHER::RtlNetlist> newNetlist) override
    {
        // The old one lives until no page points to it.
        const std::unique_ptr<NETCATCHER::RtlNetlist> old(std::exchange(self().netlist, newNetlist.release()));
        handOverNetlist();
        self().searchIndex = self().netlist ? std::make_unique<SearchIndex>(self().netlist) : nullptr;
    }

    // What differs.
    virtual QList<Core *> readFile(bool *ok, QString *errorString) const = 0;
    virtual Page *createPage(Core *core) = 0;
    /// Shows a page that is in `widgets` now (takes one out that is so no more), its entry in the list of cores too.
    virtual void putPage(Page *page) = 0;
    virtual void takePage(Page *page) = 0;
    /// Called for a core that the user added, before the document is marked.
    virtual void coreAdded(int number) { Q_UNUSED(number) }

private:
    Private &self() { return static_cast<Private &>(*this); }
    const Private &self() const { return static_cast<const Private &>(*this); }

    void addPage(Core *core)
    {
        Page *page = createPage(core);
        self().widgets.append(page);
        putPage(page);
    }

    void handOverNetlist()
    {
        for (Page *page : qAsConst(self().widgets))
            page->setRtlNetlist(self().netlist);
    }

    void dropCores()
    {
        while (!self().widgets.isEmpty()) {
            Page *page = self().widgets.takeLast();
            takePage(page);
            delete page;
        }
        qDeleteAll(self().cores);
        self().cores.clear();
    }
};

} // namespace RTLVAK::private_impl
