// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "verilatortags.h"

#include <QHash>

namespace NETCATCHER {

static QHash<QStringView, Tag> makeTags()
{
    return {
        {u"verilator_xml", Tag::Document},
        {u"file", Tag::File},
        {u"cells", Tag::Cells},
        {u"cell", Tag::Cell},
        {u"module", Tag::Module},
        {u"iface", Tag::Interface},
        {u"package", Tag::Package},
        {u"class", Tag::Class},
        {u"typetable", Tag::TypeTable},
        {u"begin", Tag::Begin},
        {u"var", Tag::Variable},
        {u"instance", Tag::Instance},
        {u"port", Tag::Port},
        {u"range", Tag::Range},
        {u"const", Tag::Constant},
        {u"func", Tag::Function},
        {u"task", Tag::Function},
        {u"clocking", Tag::Function}, // its items have the names of the nets that they sample
        {u"initial", Tag::Initial},
        {u"initialautomatic", Tag::Initial},
        {u"initialstatic", Tag::Initial},
        {u"always", Tag::Always},
        {u"alwayspublic", Tag::Always},
        {u"final", Tag::Always},
        {u"contassign", Tag::ContinuousAssignment},
        {u"assign", Tag::Assignment},
        {u"assigndly", Tag::Assignment},
        {u"assigncont", Tag::Assignment},
        {u"assignforce", Tag::Assignment},
        {u"pull", Tag::Pull},
        // What may write to the variables that it is given.
        {u"taskref", Tag::Call},
        {u"funcref", Tag::Call},
        {u"methodcall", Tag::Call},
        {u"cmethodhard", Tag::Call},
        {u"cmethodcall", Tag::Call},
        {u"new", Tag::Call},
        {u"readmem", Tag::Call},
        {u"fread", Tag::Call},
        {u"fgets", Tag::Call},
        {u"fopen", Tag::Call},
        {u"fscanf", Tag::Call},
        {u"sscanf", Tag::Call},
        {u"valueplusargs", Tag::Call},
        {u"release", Tag::Call},
        {u"foreach", Tag::Call},
        {u"preadd", Tag::Call},
        {u"presub", Tag::Call},
        {u"postadd", Tag::Call},
        {u"postsub", Tag::Call},
        {u"alias", Tag::Call},
        {u"varref", Tag::VariableReference},
        {u"varxref", Tag::PathReference},
        {u"sel", Tag::Select},
        {u"arraysel", Tag::Select},
        {u"structsel", Tag::Select},
        {u"membersel", Tag::Select},
        {u"cond", Tag::Conditional},
        {u"concat", Tag::Joining},
        {u"replicate", Tag::Joining},
        {u"extend", Tag::Joining},
        {u"extends", Tag::Joining},
        // What the engine makes of `enable ? 1'b0 : 1'bz` and its like.
        {u"and", Tag::Joining},
        {u"or", Tag::Joining},
        {u"bufif1", Tag::TristateGate},
        {u"basicdtype", Tag::BasicType},
        {u"refdtype", Tag::AliasType},
        {u"enumdtype", Tag::AliasType},
        {u"constdtype", Tag::AliasType},
        {u"packarraydtype", Tag::PackedArrayType},
        {u"unpackarraydtype", Tag::UnpackedArrayType},
        {u"structdtype", Tag::StructType},
        {u"uniondtype", Tag::StructType},
        {u"memberdtype", Tag::MemberType},
        {u"classrefdtype", Tag::HandleType},
        {u"ifacerefdtype", Tag::HandleType},
    };
}

Tag verilatorTag(QStringView name)
{
    static const QHash<QStringView, Tag> tags = makeTags();
    return tags.value(name, Tag::Other);
}

} // namespace NETCATCHER
