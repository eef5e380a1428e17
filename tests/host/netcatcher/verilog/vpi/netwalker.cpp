// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// A module for the simulator vvp. Before the simulation begins it prints each top and then its nets and variables, one
// a line: NET, what it is, path with its ranges, width (0 for an array), separated by tabulators. Paths are written as
// in the program: `/` behind an instance, `.` behind a generate block, nothing for the top itself.

#include <vpi_user.h>

#include <string>

static std::string textOf(PLI_INT32 property, vpiHandle object)
{
    const char *text = vpi_get_str(property, object);
    return text ? text : "";
}

static PLI_INT32 numberOf(vpiHandle expression)
{
    s_vpi_value value;
    value.format = vpiIntVal;
    vpi_get_value(expression, &value);
    return value.value.integer;
}

/// `[7:0]`; nothing for what has a width of one and no range, or `[0:0]`, which the simulator does not tell apart.
static std::string rangeOf(vpiHandle object)
{
    const vpiHandle left = vpi_handle(vpiLeftRange, object);
    const vpiHandle right = vpi_handle(vpiRightRange, object);
    const bool isScalar = vpi_get(vpiSize, object) == 1 && (!left || numberOf(left) == 0);
    if (!left || !right || isScalar)
        return {};
    return '[' + std::to_string(numberOf(left)) + ':' + std::to_string(numberOf(right)) + ']';
}

static void print(vpiHandle object, const std::string &path)
{
    const PLI_INT32 type = vpi_get(vpiType, object);
    std::string ranges = rangeOf(object);
    PLI_INT32 width = vpi_get(vpiSize, object);
    if (type == vpiMemory || type == vpiNetArray) {
        const PLI_INT32 first = numberOf(vpi_handle(vpiLeftRange, object));
        const vpiHandle word = vpi_handle_by_index(object, first);
        ranges += word ? rangeOf(word) : "[?]";
        width = 0;
    }
    vpi_printf("NET\t%s\t%s%s\t%d\n", textOf(vpiType, object).c_str(), path.c_str(), ranges.c_str(), int(width));
}

static void walk(vpiHandle scope, const std::string &prefix)
{
    for (const PLI_INT32 kind : {vpiNet, vpiReg, vpiVariables, vpiMemory, vpiNetArray}) {
        const vpiHandle objects = vpi_iterate(kind, scope);
        while (const vpiHandle object = objects ? vpi_scan(objects) : nullptr)
            print(object, prefix + textOf(vpiName, object));
    }
    const vpiHandle scopes = vpi_iterate(vpiInternalScope, scope);
    while (const vpiHandle inner = scopes ? vpi_scan(scopes) : nullptr) {
        const PLI_INT32 type = vpi_get(vpiType, inner);
        if (type == vpiModule)
            walk(inner, prefix + textOf(vpiName, inner) + '/');
        else if (type == vpiGenScope)
            walk(inner, prefix + textOf(vpiName, inner) + '.');
    }
}

static PLI_INT32 walkDesign(s_cb_data *)
{
    const vpiHandle tops = vpi_iterate(vpiModule, nullptr);
    while (const vpiHandle top = tops ? vpi_scan(tops) : nullptr) {
        vpi_printf("TOP\t%s\n", textOf(vpiName, top).c_str());
        walk(top, {});
    }
    vpi_control(vpiFinish, 0);
    return 0;
}

static void registerWalker()
{
    s_cb_data callback{};
    callback.reason = cbStartOfSimulation;
    callback.cb_rtn = walkDesign;
    vpi_register_cb(&callback);
}

extern "C" {
/// The simulator looks for this list.
void (*vlog_startup_routines[])() = {registerWalker, nullptr};
}
