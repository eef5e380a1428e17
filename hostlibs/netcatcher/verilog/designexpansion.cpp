// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "designexpansion.h"

#include "typeexpansion.h"

#include <QHash>

#include <algorithm>
#include <cstdlib>

namespace NETCATCHER {

/// One array of instances is taken apart up to this size.
constexpr qint64 maxArrayInstances = 1 << 20;

namespace {

class Expander
{
public:
    Expander(const RawDesign &source, const ExpansionOptions &settings, QStringList *lines)
        : design(source)
        , options(settings)
        , warnings(lines)
    {
    }

    ModuleTable run();

private:
    quint32 indexOf(const QByteArray &key);
    ModuleDef expandModule(const RawModule &raw, bool isTop);
    void expandInstances(const RawModule &raw, ModuleDef &module);
    quint8 usesOf(const RawVariable &variable) const;
    bool isGenvar(const RawModule &raw, const QByteArray &name) const;
    bool isNet(const RawModule &raw, const RawVariable &variable) const;
    bool isUnusable(const RawVariable &variable, bool isTop) const;

    const RawDesign &design;
    const ExpansionOptions &options;
    QStringList *warnings;
    QHash<QByteArray, std::size_t> byKey;
    QHash<QByteArray, quint32> numbered; ///< modules reached so far and their place in the table
    std::vector<std::size_t> reached;
};

ModuleTable Expander::run()
{
    for (std::size_t i = 0; i < design.modules.size(); ++i)
        byKey.insert(design.modules[i].key, i);
    ModuleTable table;
    indexOf(options.top);
    for (std::size_t i = 0; i < reached.size(); ++i)
        table.modules.push_back(expandModule(design.modules[reached[i]], i == 0 && !options.isPart));
    return table;
}

/// The module's place in the table; its turn to be expanded comes when it is met for the first time.
quint32 Expander::indexOf(const QByteArray &key)
{
    const auto found = numbered.constFind(key);
    if (found != numbered.constEnd())
        return *found;
    const auto index = quint32(reached.size());
    numbered.insert(key, index);
    reached.push_back(byKey.value(key));
    return index;
}

ModuleDef Expander::expandModule(const RawModule &raw, bool isTop)
{
    ModuleDef module;
    module.name = QString::fromUtf8(raw.name);
    module.blackBox = options.isBlackBox(raw);
    if (module.blackBox)
        return module;
    TypeExpansion types(design.types, module);
    for (const RawVariable &variable : raw.variables) {
        if (isNet(raw, variable))
            types.add(variable.name, variable.type, isUnusable(variable, isTop));
    }
    for (const QByteArray &name : types.cappedNames())
        warnings->append(QStringLiteral("WARNING: %1 in module %2 is too wide to be taken apart and cannot be used")
                             .arg(QString::fromUtf8(name), module.name));
    expandInstances(raw, module);
    module.squeeze();
    return module;
}

void Expander::expandInstances(const RawModule &raw, ModuleDef &module)
{
    for (const RawInstance &instance : raw.instances) {
        if (!byKey.contains(instance.module))
            continue;
        const quint32 index = indexOf(instance.module);
        if (!instance.isArray) {
            module.children.push_back({instance.name, index});
            continue;
        }
        if (std::abs(qint64(instance.left) - instance.right) > maxArrayInstances) {
            warnings->append(QStringLiteral("WARNING: %1 in module %2 has too many instances and is left out")
                                 .arg(QString::fromUtf8(instance.name), module.name));
            continue;
        }
        const int step = instance.left <= instance.right ? 1 : -1;
        for (int i = instance.left;; i += step) {
            module.children.push_back({instance.name + '[' + QByteArray::number(i) + ']', index});
            if (i == instance.right)
                break;
        }
    }
}

/// A module whose name a macro makes was not seen; its genvars are with some other module.
bool Expander::isGenvar(const RawModule &raw, const QByteArray &name) const
{
    const auto own = options.genvars.constFind(raw.name);
    if (own != options.genvars.constEnd())
        return own->contains(name) || options.genvars.value({}).contains(name);
    return std::any_of(options.genvars.cbegin(), options.genvars.cend(),
                       [&name](const QSet<QByteArray> &names) { return names.contains(name); });
}

/// A genvar looks like an integer that nobody uses.
bool Expander::isNet(const RawModule &raw, const RawVariable &variable) const
{
    const bool canBeGenvar = variable.isInteger && (variable.uses & UseUnknown) == 0;
    return !canBeGenvar || !isGenvar(raw, variable.name.mid(variable.scopeLength));
}

quint8 Expander::usesOf(const RawVariable &variable) const
{
    quint8 uses = variable.uses;
    if (variable.role == RawVariable::Input || variable.role == RawVariable::Inout)
        uses |= UseDriven;
    if (variable.role == RawVariable::Output || variable.role == RawVariable::Inout)
        uses |= UseRead;
    if (design.remotely.contains(variable.name.mid(variable.scopeLength)))
        uses |= UseUnknown;
    return uses;
}

bool Expander::isUnusable(const RawVariable &variable, bool isTop) const
{
    const quint8 uses = usesOf(variable);
    const bool isConstant = (uses & UseDrivenConstant) && !(uses & UseDriven);
    const bool isIdle = (uses & UseUnknown) == 0;
    const bool isTristate = isTop && (variable.role == RawVariable::Inout || (uses & UseTristate));
    return isConstant || isIdle || isTristate;
}

} // namespace

ModuleTable expandDesign(const RawDesign &design, const ExpansionOptions &options, QStringList *warnings)
{
    return Expander(design, options, warnings).run();
}

} // namespace NETCATCHER
