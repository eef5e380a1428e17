// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdlexpansion.h"

#include "vhdllexer.h"
#include "vhdltypes.h"

#include <QCryptographicHash>

namespace NETCATCHER {

/// Deeper than any design is, and than the engine itself can go; guards the stack.
constexpr int maxDepth = 2000;
/// The analyzer's own primitive is compared by its exact name, whatever the case in VHDL.
static const char jtagPrimitive[] = "OV_JTAG";

namespace {

/// Where the walk through one instance is.
struct Level
{
    const GhwScope *scope;
    VhdlPlace place;
    QByteArray prefix; ///< the generate statements and blocks around, as local names begin
};

/// What decides how an instance is listed, before any name is looked up: most instances are like one before.
struct Description
{
    QByteArray bytes;
    std::vector<quint32> instances; ///< modules of the instances, in the order of the walk
    std::size_t next = 0;           ///< of them, while the instance is expanded

    void add(const QByteArray &text, qint64 number = 0)
    {
        bytes += QByteArray::number(text.size()) + ',' + QByteArray::number(number) + ':' + text;
    }
};

class Expander
{
public:
    Expander(const GhwDesign &given, const GhdlTree &hierarchy, const VhdlScan &names, bool isInner, QStringList *lines)
        : design(given)
        , tree(hierarchy)
        , scan(names)
        , isPart(isInner)
        , warnings(lines)
    {
    }

    ModuleTable run();

private:
    quint32 addEntity(const GhwScope &scope, int entityNode, const QByteArray &entity, int depth);
    quint32 addBlackBox(const QByteArray &name);
    quint32 addInstance(const GhwScope &scope, int node, const VhdlInstance *statement, int depth);
    quint32 numbered(ModuleDef module);
    void describe(const GhwScope &scope, int node, Description &description, const VhdlPlace &place, int depth);
    void addScope(const Level &level, ModuleDef &module, Description &description, bool isTop);
    void addSignals(const Level &level, ModuleDef &module, bool isTop);
    void warn(const QList<QByteArray> &names, const ModuleDef &module);
    bool isUnusable(const Level &level, const GhwSignal &signal, bool isTop) const;
    QString moduleName(const QByteArray &name, int depth) const;

    const GhwDesign &design;
    const GhdlTree &tree;
    const VhdlScan &scan;
    const bool isPart;
    QStringList *warnings;
    ModuleTable table;
    QHash<QByteArray, quint32> described; ///< modules by the digests of their descriptions
    QHash<QByteArray, quint32> known;     ///< modules by the digests of their contents
};

ModuleTable Expander::run()
{
    if (design.scopes.empty())
        return {};
    for (int child : design.scopes.front().children) {
        const GhwScope &scope = design.scopes[std::size_t(child)];
        if (scope.kind != GhwScope::Instance)
            continue;
        table.top = addEntity(scope, tree.top, vhdlKey(scope.name), 0);
        return std::move(table);
    }
    return {};
}

QString Expander::moduleName(const QByteArray &name, int depth) const
{
    if (depth > 0 && qstricmp(name.constData(), jtagPrimitive) == 0)
        return QLatin1String(jtagPrimitive);
    return QString::fromUtf8(vhdlDisplayName(name));
}

quint32 Expander::addEntity(const GhwScope &scope, int entityNode, const QByteArray &entity, int depth)
{
    const int body = tree.childOfKind(entityNode, "arch");
    Level level{&scope, {}, {}};
    level.place.entity = entity;
    level.place.architecture = body >= 0 ? vhdlKey(tree.nodes[std::size_t(body)].name) : scan.lastArchitecture(entity);
    Description description;
    description.add(entity, depth == 0 ? 1 : 0);
    description.add(level.place.architecture);
    if (depth < maxDepth)
        describe(scope, body, description, level.place, depth);
    const QByteArray digest = QCryptographicHash::hash(description.bytes, QCryptographicHash::Sha256);
    const auto found = described.constFind(digest);
    if (found != described.constEnd())
        return *found;
    ModuleDef module;
    module.name = moduleName(scan.entityName(entity), depth);
    if (depth < maxDepth)
        addScope(level, module, description, depth == 0 && !isPart);
    module.squeeze();
    return *described.insert(digest, numbered(std::move(module)));
}

quint32 Expander::addBlackBox(const QByteArray &name)
{
    ModuleDef module;
    module.name = moduleName(name, 1);
    module.blackBox = true;
    return numbered(std::move(module));
}

/// An instance of a component that is bound to nothing is a black box; its pins are no nets.
quint32 Expander::addInstance(const GhwScope &scope, int node, const VhdlInstance *statement, int depth)
{
    const int entityNode = tree.childOfKind(node, "entity");
    if (entityNode >= 0)
        return addEntity(scope, entityNode, vhdlKey(tree.nodes[std::size_t(entityNode)].name), depth);
    const QByteArray unit = statement ? statement->unit : scope.name;
    const QByteArray entity = scan.entityBehind(vhdlKey(unit));
    if (node < 0 && scan.hasEntity(entity))
        return addEntity(scope, -1, entity, depth);
    return addBlackBox(scan.componentName(vhdlKey(unit)));
}

static QByteArray digestOf(const ModuleDef &module)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const auto add = [&hash](const QByteArray &text, quint32 number, qint32 left = 0, qint32 right = 0) {
        const quint32 head[] = {quint32(text.size()), number, quint32(left), quint32(right)};
        hash.addData(reinterpret_cast<const char *>(head), int(sizeof head));
        hash.addData(text);
    };
    add(module.name.toUtf8(), module.blackBox ? 1 : 0);
    for (const ModuleDef::Child &child : module.children)
        add(child.name, child.module);
    add({}, module.singleCount());
    for (quint32 i = 0; i < module.singleCount(); ++i)
        add(module.singleText(i), module.isSingleUnusable(i) ? 1 : 0);
    for (quint32 i = 0; i < module.busCount(); ++i) {
        const BusDef &bus = module.bus(i);
        add(module.busText(i), quint32(bus.form) << 1 | quint32(bus.unusable), bus.left, bus.right);
    }
    return hash.result();
}

/// The place in the table of a module with this content, which is added when there is none yet.
quint32 Expander::numbered(ModuleDef module)
{
    const QByteArray digest = digestOf(module);
    const auto found = known.constFind(digest);
    if (found != known.constEnd())
        return *found;
    const auto index = quint32(table.modules.size());
    known.insert(digest, index);
    table.modules.push_back(std::move(module));
    return index;
}

static bool hasLocalNames(const GhwScope &scope)
{
    return scope.kind == GhwScope::Block || scope.kind == GhwScope::IfGenerate || scope.kind == GhwScope::ForGenerate;
}

/// Goes through an instance, and through the instances in it, for what it consists of.
void Expander::describe(const GhwScope &scope, int node, Description &description, const VhdlPlace &place, int depth)
{
    description.add(scope.index, qint64(scope.signalList.size()));
    for (const GhwSignal &signal : scope.signalList)
        description.add(signal.name, qint64(signal.type) << 8 | signal.kind);
    int next = 0;
    for (int child : scope.children) {
        const GhwScope &inner = design.scopes[std::size_t(child)];
        // Processes are not in the tree, where a look in vain costs as much as there are nodes.
        if (inner.kind != GhwScope::Instance && !hasLocalNames(inner))
            continue;
        const QByteArray name = inner.index.isNull() ? inner.name : inner.name + '(' + inner.index + ')';
        const int innerNode = tree.childNamed(node, name, &next);
        if (inner.kind == GhwScope::Instance) {
            const VhdlInstance *statement = scan.instance(place, vhdlKey(inner.name));
            description.instances.push_back(addInstance(inner, innerNode, statement, depth + 1));
            description.add(inner.name, description.instances.back());
        } else {
            VhdlPlace innerPlace = place;
            innerPlace.scopes.append(vhdlKey(inner.name));
            description.add(inner.name, -1);
            describe(inner, innerNode, description, innerPlace, depth);
        }
    }
    description.add({}, -2);
}

void Expander::addScope(const Level &level, ModuleDef &module, Description &description, bool isTop)
{
    addSignals(level, module, isTop);
    for (int child : level.scope->children) {
        const GhwScope &inner = design.scopes[std::size_t(child)];
        const QByteArray key = vhdlKey(inner.name);
        const QByteArray label = level.prefix + vhdlDisplayName(scan.labelName(level.place, key));
        if (inner.kind == GhwScope::Instance) {
            module.children.push_back({label, description.instances[description.next++]});
        } else if (hasLocalNames(inner)) {
            Level below{&inner, level.place, label};
            below.place.scopes.append(key);
            if (inner.kind == GhwScope::ForGenerate)
                below.prefix += '(' + vhdlDisplayName(scan.literalName(inner.index)) + ')';
            below.prefix += '.';
            addScope(below, module, description, isTop);
        }
    }
}

void Expander::addSignals(const Level &level, ModuleDef &module, bool isTop)
{
    VhdlTypes types(design, scan, module);
    for (const GhwSignal &signal : level.scope->signalList) {
        const QByteArray name = scan.signalName(level.place, vhdlKey(signal.name));
        types.add(level.prefix + vhdlDisplayName(name), signal.type, isUnusable(level, signal, isTop));
    }
    warn(types.cappedNames(), module);
}

void Expander::warn(const QList<QByteArray> &names, const ModuleDef &module)
{
    for (const QByteArray &name : names) {
        const QString line = QStringLiteral("WARNING: %1 in module %2 is too wide to be taken apart and cannot be used")
                                 .arg(QString::fromUtf8(name), module.name);
        if (!warnings->contains(line))
            warnings->append(line);
    }
}

/// What drives a signal cannot be told from the engine's result; that nothing names it can be told from the text.
bool Expander::isUnusable(const Level &level, const GhwSignal &signal, bool isTop) const
{
    if (signal.kind == GhwSignal::Internal)
        return !scan.isUsed(level.place, vhdlKey(signal.name));
    return isTop && (signal.kind == GhwSignal::Inout || signal.kind == GhwSignal::Linkage);
}

} // namespace

ModuleTable expandVhdl(const GhwDesign &design, const GhdlTree &tree, const VhdlScan &scan, bool isPart,
                       QStringList *warnings)
{
    return Expander(design, tree, scan, isPart, warnings).run();
}

} // namespace NETCATCHER
