// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "verilatorxml.h"

#include "variableuses.h"
#include "verilatortags.h"
#include "verilatortext.h"
#include "verilatortypes.h"
#include "xmlbytes.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace NETCATCHER {

namespace {

/// How an expression uses the variables in it.
enum class Access : quint8 { Read, Write, Unknown, InputPort, Nothing };

/// One open element.
struct Frame
{
    Tag tag = Tag::Other;
    Access access = Access::Read;
    quint8 writeUses = UseDriven; ///< what Access::Write means here
    bool inBody = false;          ///< below a process, function or task: its variables are no nets
    bool inInitial = false;
    bool isNet = false;   ///< a variable that was taken over
    bool isValue = false; ///< what stands here is the assigned value itself, or a part of it
    int scope = 0;
    int scopeNameLength = 0; ///< of Reader::scopeName, to return to at its end
    int children = 0;
};

class Reader
{
public:
    Reader(QIODevice &source, RawDesign &result)
        : device(source)
        , bytes(source)
        , xml(&bytes)
        , design(result)
        , types(result.types)
    {
    }

    bool read(const std::function<void(qint64)> &progress, QString *error);

private:
    void open();
    void close();
    void enter(Frame &frame);
    void inheritExpression(Frame &frame, const Frame &parent);
    QByteArray text(const char *attribute) const;
    int number(const char *attribute) const;

    void addFile();
    void openModule(Tag tag);
    void openBegin(Frame &frame);
    void addVariable(Frame &frame);
    void openInstance();
    void openPort(Frame &frame);
    void addConstant(const Frame &frame);
    void addReference(const Frame &frame);
    void addPathReference();
    void setRange(int position, int value);
    bool isInModule() const { return moduleDepth > 0 && stack.size() >= moduleDepth; }

    QIODevice &device;
    XmlBytes bytes;
    QXmlStreamReader xml;
    QXmlStreamAttributes attributes;
    RawDesign &design;
    QHash<QByteArray, QByteArray> files;
    std::vector<Frame> stack;
    std::size_t moduleDepth = 0; ///< stack size at the open module, 0 outside of modules
    VariableUses uses;
    QByteArray scopeName;
    bool constantAssigned = false; ///< the assignment being read names no variable on its right side so far
    bool tristateAssigned = false;
    VerilatorTypes types;
};

QByteArray Reader::text(const char *attribute) const
{
    const QByteArray name = attributes.value(QLatin1String(attribute)).toLatin1();
    const bool isPlain = std::none_of(name.cbegin(), name.cend(), [](char byte) { return quint8(byte) >= 0x80; });
    return isPlain ? name : utf8OfSource(name);
}

int Reader::number(const char *attribute) const
{
    return attributes.value(QLatin1String(attribute)).toInt();
}

bool Reader::read(const std::function<void(qint64)> &progress, QString *error)
{
    quint32 elements = 0;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            open();
        else if (token == QXmlStreamReader::EndElement)
            close();
        else if (token == QXmlStreamReader::DTD)
            xml.raiseError(QStringLiteral("a document type definition"));
        if (++elements % 4096 == 0)
            progress(device.pos());
    }
    if (xml.hasError())
        *error = QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
    return !xml.hasError();
}

void Reader::open()
{
    Frame frame;
    frame.tag = verilatorTag(xml.name());
    if (stack.empty()) {
        if (frame.tag != Tag::Document)
            xml.raiseError(QStringLiteral("this is no output of Verilator"));
    } else {
        const Frame &parent = stack.back();
        frame.inBody = parent.inBody;
        frame.inInitial = parent.inInitial;
        frame.scope = parent.scope;
        inheritExpression(frame, parent);
        ++stack.back().children;
    }
    frame.scopeNameLength = scopeName.size();
    attributes = xml.attributes();
    enter(frame);
    stack.push_back(frame);
}

void Reader::close()
{
    const Frame frame = stack.back();
    stack.pop_back();
    scopeName.truncate(frame.scopeNameLength);
    if (moduleDepth > 0 && stack.size() + 1 == moduleDepth) {
        uses.resolve(design.modules.back());
        moduleDepth = 0;
    }
}

/// Derives from the parent's role what an expression below it does with its variables.
void Reader::inheritExpression(Frame &frame, const Frame &parent)
{
    const int position = parent.children;
    frame.access = parent.access;
    frame.writeUses = parent.writeUses;
    switch (parent.tag) {
    case Tag::Assignment:
    case Tag::ContinuousAssignment:
        // The right side comes first. Outside of processes there is no such assignment but the first one to the genvar
        // of a loop without rounds, which the engine leaves behind.
        frame.access = position == 1 ? Access::Write : Access::Read;
        if (parent.tag == Tag::Assignment && !parent.inBody)
            frame.access = Access::Nothing;
        frame.isValue = position == 0;
        if (position == 1) {
            const bool lasting = parent.tag == Tag::ContinuousAssignment || parent.inInitial;
            frame.writeUses = quint8((constantAssigned && lasting ? UseDrivenConstant : UseDriven) |
                                     (tristateAssigned ? UseTristate : 0));
        }
        break;
    case Tag::Select:
        if (parent.access == Access::Write && position > 0)
            frame.access = Access::Read;
        break;
    case Tag::Pull:
        frame.access = Access::Write;
        frame.writeUses = UseDrivenConstant;
        break;
    case Tag::Call:
        frame.access = Access::Unknown;
        break;
    case Tag::Conditional:
        frame.isValue = parent.isValue && position > 0;
        break;
    case Tag::Joining:
        frame.isValue = parent.isValue;
        break;
    default:
        break;
    }
}

void Reader::enter(Frame &frame)
{
    switch (frame.tag) {
    case Tag::File:
        addFile();
        break;
    case Tag::Cell:
        if (!stack.empty() && stack.back().tag == Tag::Cells)
            design.roots.append(decodedVerilatorName(text("submodname")));
        break;
    case Tag::Module:
    case Tag::Interface:
        openModule(frame.tag);
        break;
    case Tag::Package:
    case Tag::Class:
        frame.inBody = true;
        break;
    case Tag::Begin:
        openBegin(frame);
        break;
    case Tag::Variable:
        addVariable(frame);
        break;
    case Tag::Instance:
        openInstance();
        break;
    case Tag::Port:
        openPort(frame);
        break;
    case Tag::Constant:
        addConstant(frame);
        break;
    case Tag::Function:
        frame.inBody = true;
        frame.scope = uses.addScope(frame.scope);
        break;
    case Tag::Initial:
    case Tag::Always:
        frame.inBody = true;
        frame.inInitial = frame.tag == Tag::Initial;
        break;
    case Tag::Assignment:
    case Tag::ContinuousAssignment:
        constantAssigned = true;
        tristateAssigned = false;
        break;
    case Tag::Call:
        constantAssigned = false;
        break;
    case Tag::TristateGate:
        tristateAssigned = true;
        break;
    case Tag::VariableReference:
        addReference(frame);
        break;
    case Tag::PathReference:
        addPathReference();
        break;
    default:
        if (frame.tag >= Tag::BasicType || (!stack.empty() && stack.back().tag == Tag::TypeTable))
            types.add(frame.tag, stack.empty() ? Tag::Other : stack.back().tag, attributes);
        break;
    }
}

void Reader::addFile()
{
    files.insert(text("id"), text("filename"));
    design.files.append(text("filename"));
}

void Reader::openModule(Tag tag)
{
    if (isInModule()) {
        xml.raiseError(QStringLiteral("a module inside of a module"));
        return;
    }
    RawModule module;
    module.key = decodedVerilatorName(text("name"));
    module.name = decodedVerilatorName(text("origName"));
    module.isInterface = tag == Tag::Interface;
    const QList<QByteArray> place = text("loc").split(',');
    module.file = files.value(place.value(0));
    module.line = place.value(1).toInt();
    design.modules.push_back(std::move(module));
    uses = VariableUses();
    moduleDepth = stack.size() + 1;
}

void Reader::openBegin(Frame &frame)
{
    if (!isInModule())
        return;
    frame.scope = uses.addScope(frame.scope);
    const QByteArray name = text("name");
    if (!name.isEmpty())
        scopeName += name + '.';
}

void Reader::addVariable(Frame &frame)
{
    if (!isInModule())
        return;
    const QByteArray name = text("name");
    RawModule &module = design.modules.back();
    const bool isParameter =
        attributes.hasAttribute(QLatin1String("param")) || attributes.hasAttribute(QLatin1String("localparam"));
    // The engine declares a handle of its own beside each interface instance.
    if (frame.inBody || isParameter || name.endsWith("__Viftop")) {
        uses.declare(frame.scope, name, -1);
        return;
    }
    RawVariable variable;
    variable.name = scopeName + name;
    variable.scopeLength = scopeName.size();
    variable.type = number("dtype_id");
    const QByteArray direction = text("dir");
    variable.role = direction == "input"    ? RawVariable::Input
                    : direction == "output" ? RawVariable::Output
                    : direction == "inout"  ? RawVariable::Inout
                                            : RawVariable::Internal;
    variable.isInteger = text("vartype") == "integer";
    uses.declare(frame.scope, name, int(module.variables.size()));
    module.variables.push_back(variable);
    frame.isNet = true;
}

void Reader::openInstance()
{
    if (!isInModule())
        return;
    RawInstance instance;
    instance.name = scopeName + text("name");
    instance.module = decodedVerilatorName(text("defName"));
    design.modules.back().instances.push_back(std::move(instance));
}

void Reader::openPort(Frame &frame)
{
    if (!isInModule() || design.modules.back().instances.empty()) {
        xml.raiseError(QStringLiteral("a port outside of an instance"));
        return;
    }
    const QByteArray direction = text("direction");
    frame.access = direction == "in" ? Access::InputPort : direction == "out" ? Access::Write : Access::Unknown;
    frame.writeUses = UseDriven;
}

void Reader::setRange(int position, int value)
{
    if (stack.size() < 2)
        return;
    const Tag owner = stack[stack.size() - 2].tag;
    if (owner == Tag::Instance && isInModule() && !design.modules.back().instances.empty()) {
        RawInstance &instance = design.modules.back().instances.back();
        instance.isArray = true;
        (position == 0 ? instance.left : instance.right) = value;
    } else if (owner == Tag::PackedArrayType || owner == Tag::UnpackedArrayType) {
        types.setBound(position, value);
    }
}

void Reader::addConstant(const Frame &frame)
{
    if (stack.empty())
        return;
    const Frame &parent = stack.back();
    const QString name = attributes.value(QLatin1String("name")).toString();
    if (parent.tag == Tag::Range) {
        int value = 0;
        if (parseVerilatorConstant(name, &value))
            setRange(parent.children - 1, value);
        else
            xml.raiseError(QStringLiteral("the bound %1 of a range is too large").arg(name));
    } else if (parent.isNet) {
        design.modules.back().variables.back().uses |= UseDrivenConstant;
    } else if (frame.isValue && name.section(QLatin1Char('\''), 1).contains(QLatin1Char('z'))) {
        tristateAssigned = true;
    }
}

void Reader::addReference(const Frame &frame)
{
    if (!isInModule())
        return;
    const QByteArray name = text("name");
    constantAssigned = constantAssigned && frame.access == Access::Write;
    switch (frame.access) {
    case Access::Read:
        uses.refer(frame.scope, name, UseRead);
        break;
    case Access::Write:
        uses.refer(frame.scope, name, frame.writeUses);
        break;
    case Access::Unknown:
        uses.refer(frame.scope, name, UseUnknown);
        break;
    case Access::InputPort:
        uses.referFromInput(frame.scope, name, int(design.modules.back().instances.size()) - 1);
        break;
    case Access::Nothing:
        break;
    }
}

void Reader::addPathReference()
{
    constantAssigned = false;
    design.remotely.insert(text("name"));
}

} // namespace

bool readVerilatorXml(QIODevice &device, RawDesign &design, const std::function<void(qint64)> &progress, QString *error)
{
    return Reader(device, design).read(progress, error);
}

} // namespace NETCATCHER
