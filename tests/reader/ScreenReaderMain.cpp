// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A small screen reader for tests: a client of the accessibility bus, with the library that real screen readers use. It
// is a process of its own, because its calls wait for the process whose windows it reads.
//
//   tree PID             the accessible tree of a process, one object a line
//   listen PID           its events, one a line, until standard input ends
//   set PID NAME NUMBER  changes the value of the object with this name
//   press PID NAME       performs the first action of the object with this name
//
// A line of the tree: depth, role, name, description, states (separated by commas), "minimum,value,maximum" or nothing,
// "x,y,width,height" in the window. The fields are separated by tabs.
#include <atspi/atspi.h>
#include <glib.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

namespace {

constexpr int kDeepest = 40;
constexpr int kMostChildren = 400;

std::string taken(gchar* text) {
    const std::string result = text ? text : "";
    g_free(text);
    return result;
}

std::string inOneLine(std::string text) {
    for (char& letter : text)
        if (letter == '\t' || letter == '\n' || letter == '\r')
            letter = ' ';
    return text;
}

std::string nameOf(AtspiAccessible* object) {
    return inOneLine(taken(atspi_accessible_get_name(object, nullptr)));
}

std::string roleOf(AtspiAccessible* object) {
    return taken(atspi_accessible_get_role_name(object, nullptr));
}

std::string statesOf(AtspiAccessible* object) {
    std::string text;
    AtspiStateSet* set = atspi_accessible_get_state_set(object);
    if (!set)
        return text;
    GArray* states = atspi_state_set_get_states(set);
    for (guint i = 0; states && i < states->len; ++i) {
        GEnumClass* names = G_ENUM_CLASS(g_type_class_ref(atspi_state_type_get_type()));
        const GEnumValue* value = g_enum_get_value(names, g_array_index(states, AtspiStateType, i));
        if (value)
            text += (text.empty() ? "" : ",") + std::string(value->value_nick);
        g_type_class_unref(names);
    }
    if (states)
        g_array_free(states, TRUE);
    g_object_unref(set);
    return text;
}

std::string valueOf(AtspiAccessible* object) {
    AtspiValue* value = atspi_accessible_get_value_iface(object);
    if (!value)
        return {};
    char text[128];
    std::snprintf(text, sizeof text, "%g,%g,%g", atspi_value_get_minimum_value(value, nullptr),
                  atspi_value_get_current_value(value, nullptr), atspi_value_get_maximum_value(value, nullptr));
    g_object_unref(value);
    return text;
}

std::string placeOf(AtspiAccessible* object) {
    AtspiComponent* component = atspi_accessible_get_component_iface(object);
    if (!component)
        return {};
    char text[128] = "";
    if (AtspiRect* rect = atspi_component_get_extents(component, ATSPI_COORD_TYPE_WINDOW, nullptr)) {
        std::snprintf(text, sizeof text, "%d,%d,%d,%d", rect->x, rect->y, rect->width, rect->height);
        g_free(rect);
    }
    g_object_unref(component);
    return text;
}

using Visit = std::function<bool(AtspiAccessible*, int depth)>; ///< returns whether to go on

bool walk(AtspiAccessible* object, int depth, const Visit& visit) {
    if (!visit(object, depth))
        return false;
    const int children = std::min(atspi_accessible_get_child_count(object, nullptr), kMostChildren);
    for (int i = 0; depth < kDeepest && i < children; ++i) {
        AtspiAccessible* child = atspi_accessible_get_child_at_index(object, i, nullptr);
        const bool goOn = !child || walk(child, depth + 1, visit);
        if (child)
            g_object_unref(child);
        if (!goOn)
            return false;
    }
    return true;
}

/// The application of this process; null when it is not on the bus. The caller owns it.
AtspiAccessible* application(guint process) {
    AtspiAccessible* desktop = atspi_get_desktop(0);
    const int children = desktop ? atspi_accessible_get_child_count(desktop, nullptr) : 0;
    AtspiAccessible* found = nullptr;
    for (int i = 0; i < children && !found; ++i) {
        AtspiAccessible* each = atspi_accessible_get_child_at_index(desktop, i, nullptr);
        if (each && atspi_accessible_get_process_id(each, nullptr) == process)
            found = each;
        else if (each)
            g_object_unref(each);
    }
    if (desktop)
        g_object_unref(desktop);
    return found;
}

int tree(AtspiAccessible* root) {
    walk(root, 0, [](AtspiAccessible* object, int depth) {
        const std::string description = inOneLine(taken(atspi_accessible_get_description(object, nullptr)));
        std::printf("%d\t%s\t%s\t%s\t%s\t%s\t%s\n", depth, roleOf(object).c_str(), nameOf(object).c_str(),
                    description.c_str(), statesOf(object).c_str(), valueOf(object).c_str(), placeOf(object).c_str());
        return true;
    });
    return 0;
}

/// Calls @p act on the first object of this name. @return the exit status
int withObject(AtspiAccessible* root, std::string_view name, const std::function<bool(AtspiAccessible*)>& act) {
    bool done = false;
    walk(root, 0, [&](AtspiAccessible* object, int) {
        if (nameOf(object) != name || !act(object))
            return true;
        done = true;
        return false;
    });
    return done ? 0 : 1;
}

bool setValue(AtspiAccessible* object, double number) {
    AtspiValue* value = atspi_accessible_get_value_iface(object);
    if (!value)
        return false;
    const bool done = atspi_value_set_current_value(value, number, nullptr);
    g_object_unref(value);
    return done;
}

bool press(AtspiAccessible* object) {
    AtspiAction* action = atspi_accessible_get_action_iface(object);
    if (!action)
        return false;
    const bool done = atspi_action_do_action(action, 0, nullptr);
    g_object_unref(action);
    return done;
}

void heard(AtspiEvent* event, void* process) {
    if (event->source && atspi_accessible_get_process_id(event->source, nullptr) == *static_cast<guint*>(process)) {
        std::printf("%s\t%d\t%s\t%s\n", event->type, event->detail1, roleOf(event->source).c_str(),
                    nameOf(event->source).c_str());
        std::fflush(stdout);
    }
    g_boxed_free(atspi_event_get_type(), event);
}

int listen(guint process) {
    AtspiEventListener* listener = atspi_event_listener_new(heard, &process, nullptr);
    for (const char* type :
         {"object:state-changed:showing", "object:state-changed:focused", "object:property-change:accessible-name",
          "object:property-change:accessible-value", "object:announcement"})
        atspi_event_listener_register(listener, type, nullptr);
    GIOChannel* input = g_io_channel_unix_new(0);
    g_io_add_watch(
        input, GIOCondition(G_IO_HUP | G_IO_IN),
        [](GIOChannel*, GIOCondition, gpointer) -> gboolean {
            atspi_event_quit();
            return FALSE;
        },
        nullptr);
    std::printf("listening\n");
    std::fflush(stdout);
    atspi_event_main();
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3 || atspi_init() > 1)
        return 2;
    const std::string_view command = argv[1];
    auto process = guint(std::strtoul(argv[2], nullptr, 10));
    if (command == "listen")
        return listen(process);
    AtspiAccessible* root = application(process);
    if (!root) {
        std::fprintf(stderr, "process %u is not on the accessibility bus\n", process);
        return 3;
    }
    if (command == "tree")
        return tree(root);
    if (command == "set" && argc == 5)
        return withObject(root, argv[3], [&](auto* object) { return setValue(object, std::strtod(argv[4], nullptr)); });
    if (command == "press" && argc == 4)
        return withObject(root, argv[3], press);
    return 2;
}
