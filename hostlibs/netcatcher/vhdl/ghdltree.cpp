// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghdltree.h"

namespace NETCATCHER {

int GhdlTree::childOfKind(int node, const char *kind) const
{
    if (node < 0)
        return -1;
    for (int child : nodes[std::size_t(node)].children) {
        if (nodes[std::size_t(child)].kind == kind)
            return child;
    }
    return -1;
}

int GhdlTree::childNamed(int node, const QByteArray &name, int *from) const
{
    if (node < 0)
        return -1;
    const std::vector<int> &children = nodes[std::size_t(node)].children;
    const auto count = int(children.size());
    for (int i = 0; i < count; ++i) {
        const int place = (*from + i) % count;
        if (nodes[std::size_t(children[std::size_t(place)])].name == name) {
            *from = place + 1;
            return children[std::size_t(place)];
        }
    }
    return -1;
}

/// How many levels of two characters (`| `, `  `, `+-` or a corner) stand before the name.
static int levelOf(const QByteArray &line)
{
    int level = 0;
    for (int pos = 0; pos + 1 < line.size(); pos += 2, ++level) {
        const QByteArray mark = line.mid(pos, 2);
        if (mark == "+-" || mark == "`-")
            return level + 1;
        if (mark != "| " && mark != "  ")
            break;
    }
    return 0;
}

/// Reads `name [kind]`; false for any other line.
static bool parseLine(const QByteArray &line, int level, GhdlNode *node)
{
    const int bracket = line.lastIndexOf(" [");
    if (bracket <= 2 * level || !line.endsWith(']'))
        return false;
    node->name = line.mid(2 * level, bracket - 2 * level);
    node->kind = line.mid(bracket + 2, line.size() - bracket - 3);
    return node->kind != "package" && (node->name.startsWith('\\') || !node->name.contains(' '));
}

GhdlTree parseGhdlTree(const QByteArray &output)
{
    GhdlTree tree;
    std::vector<int> path; // the nodes above the line
    for (int begin = 0, end = 0; begin < output.size(); begin = end + 1) {
        end = output.indexOf('\n', begin);
        end = end < 0 ? output.size() : end;
        const QByteArray line = output.mid(begin, end - begin);
        const int level = levelOf(line);
        GhdlNode node;
        if (!parseLine(line, level, &node) || level > int(path.size()))
            continue;
        const auto index = int(tree.nodes.size());
        path.resize(std::size_t(level));
        if (level > 0)
            tree.nodes[std::size_t(path.back())].children.push_back(index);
        else if (tree.top < 0 && node.kind == "entity")
            tree.top = index;
        path.push_back(index);
        tree.nodes.push_back(node);
    }
    return tree;
}

} // namespace NETCATCHER
