// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ghwdesign.h"

namespace NETCATCHER {

class GhwCursor;

/// Reads the type table of a GHW file into a design's. The file gives the bounds of an object at once for all that its
/// type is made of; here each part gets an entry of its own, so the numbers of the file's types and ours differ.
class GhwTypes
{
public:
    /// All three must outlive it. Strings are numbered from 1; the first entry is the empty name.
    GhwTypes(GhwCursor &in, const QVector<QByteArray> &strings, GhwDesign &design);

    /// The section of types, behind its tag.
    bool readTypes();
    /// The section that tells which types are the standard's, behind its tag.
    bool readWellKnown();

    QByteArray takeName();
    /// A type's place in the design's table; the first after a failure.
    int takeType();
    /// A value that an object of the type can have; it fails for a type that cannot be an index.
    qint64 takeValue(int type);

private:
    /// What matters only while the file is read.
    struct Note
    {
        quint8 code = 0; ///< of a scalar the kind of its base, which tells how values are written
        int base = 0;    ///< of a scalar what it was derived of, else itself
        int depth = 0;   ///< how deep composites nest in it
    };

    bool readType();
    bool readEnumeration(quint8 code);
    bool readNumeric(quint8 code);
    bool readArray();
    bool readRecord();
    bool readScalarSubtype();
    bool readBoundedSubtype(bool isArray);
    bool readUnboundedSubtype(bool isArray);
    bool readWellKnownType(quint8 code);

    void skipUnits();
    GhwRange takeRange(int type);
    int takeComposite(bool isArray);
    /// The type with bounds from the file for whatever in it has none yet.
    int withBounds(int type);
    void boundArray(GhwType *array);
    void boundRecord(GhwType *record);
    bool append(GhwType type, Note note);
    bool appendComposite(GhwType type);
    GhwType &typeAt(int type) { return m_design.types[size_t(type)]; }
    const Note &noteAt(int type) const { return m_notes[size_t(type)]; }
    int lastType() const { return int(m_notes.size()) - 1; }

    GhwCursor &m_in;
    const QVector<QByteArray> &m_strings;
    GhwDesign &m_design;
    std::vector<Note> m_notes;    ///< beside the design's types
    std::vector<int> m_fileTypes; ///< places in the design's table
    qint64 m_copiedFields = 0;
};

} // namespace NETCATCHER
