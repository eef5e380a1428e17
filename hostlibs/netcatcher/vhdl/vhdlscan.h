// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QVector>

namespace NETCATCHER {

/// What an instance is made of, as its statement says.
struct VhdlInstance
{
    QByteArray unit; ///< the component's, entity's or configuration's name as written here, without its library
    bool hasGenerics = false;
};

/// A place in an architecture: the labels of the blocks and generate statements around it.
struct VhdlPlace
{
    QByteArray entity;        ///< key
    QByteArray architecture;  ///< key; empty for the entity itself
    QList<QByteArray> scopes; ///< keys of labels, the outermost first

    QByteArray text() const;
};

/// What a scan of VHDL sources found. It is a rough reading of the text; the engine's own judgement completes it. The
/// engine knows names in lower case only, so this is where their spelling is kept. All keys are vhdlKey() of a name.
class VhdlScan
{
public:
    /// Adds what `text` declares. False when there is nothing in it but comments.
    bool add(const QByteArray &text);

    /// Entities as declared, in the order of the texts.
    const QVector<QByteArray> &entities() const { return m_entities; }
    bool hasEntity(const QByteArray &key) const { return m_entityNames.contains(key); }
    /// Those that nothing but themselves instantiates.
    QVector<QByteArray> roots() const;
    /// Keys of everything that is instantiated, wherever its source is.
    QSet<QByteArray> instantiated() const;

    QByteArray entityName(const QByteArray &key) const { return m_entityNames.value(key, key); }
    QByteArray componentName(const QByteArray &key) const { return m_componentNames.value(key, key); }
    /// The signal or port `key` as its declaration spells it; looked for from the place outwards.
    QByteArray signalName(VhdlPlace place, const QByteArray &key) const;
    QByteArray labelName(const VhdlPlace &place, const QByteArray &key) const;
    QByteArray fieldName(const QByteArray &typeKey, const QByteArray &key) const;
    /// The literal of an enumeration as declared.
    QByteArray literalName(const QByteArray &key) const { return m_literals.value(key, key); }
    /// The instance labelled `key` at the place; nothing when there is none.
    const VhdlInstance *instance(const VhdlPlace &place, const QByteArray &key) const;
    /// The generics of an entity that have no default, as declared.
    QList<QByteArray> openGenerics(const QByteArray &entity) const { return m_openGenerics.value(entity); }
    /// The entity that a configuration is of; any other key is answered as it is.
    QByteArray entityBehind(const QByteArray &key) const { return m_configurations.value(key, key); }
    /// The architecture that comes last in the texts; empty when there is none.
    QByteArray lastArchitecture(const QByteArray &entity) const { return m_architectures.value(entity); }

    /// Whether an instance of the unit sets generics.
    bool setsGenerics(const QByteArray &key) const { return m_withGenerics.contains(key); }
    /// Whether something declares a file: what it holds can become a part of the design, and nobody sees it change.
    bool usesFiles() const { return m_usesFiles; }

    /// Whether the architecture names the signal anywhere but in its declaration, or any text does through a path. True
    /// for architectures that were not scanned.
    bool isUsed(const VhdlPlace &place, const QByteArray &key) const;

private:
    friend class VhdlScanner;

    QVector<QByteArray> m_entities;
    QHash<QByteArray, QByteArray> m_entityNames;
    QHash<QByteArray, QByteArray> m_componentNames;
    QHash<QByteArray, QByteArray> m_architectures;
    QHash<QByteArray, QByteArray> m_configurations;
    QHash<QByteArray, QSet<QByteArray>> m_instantiated; ///< by the entity that does it
    QHash<QByteArray, QByteArray> m_signals;            ///< by place and key
    QHash<QByteArray, QByteArray> m_labels;             ///< by place and key
    QHash<QByteArray, QByteArray> m_fields;             ///< by type and key
    QHash<QByteArray, QByteArray> m_literals;
    QHash<QByteArray, VhdlInstance> m_instances; ///< by place and key
    QHash<QByteArray, QList<QByteArray>> m_openGenerics;
    QSet<QByteArray> m_scanned; ///< architectures
    QSet<QByteArray> m_used;    ///< architecture and key
    QSet<QByteArray> m_usedRemotely;
    QSet<QByteArray> m_withGenerics; ///< units whose generics an instance sets
    bool m_usesFiles = false;
};

} // namespace NETCATCHER
