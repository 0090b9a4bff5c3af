// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/dump.h"
#include "console/json_line.h"
#include "controls/graph.h"
#include "controls/grid.h"
#include "controls/kinds.h"
#include "controls/list.h"

namespace kelvra::console {

namespace {

using namespace controls;

template <class T>
const T& As(const Control& control) {
    return static_cast<const T&>(control);
}

void OptionalColour(JsonLine& json, const char* key, const std::optional<Colour>& colour) {
    if (colour) json.Key(key).Colour(*colour);
}

void Place(JsonLine& json, const Geometry& place) {
    json.Member("left", place.left).Member("top", place.top);
    json.Member("width", place.width).Member("height", place.height);
}

void ListMembers(JsonLine& json, const List& list) {
    json.Key("items").BeginList();
    for (const List::Item& item : list.Items())
        json.BeginObject().Member("text", item.text).Member("data", item.data).EndObject();
    json.EndList().Member("index", list.Index()).Member("text", list.Text());
}

void Cell(JsonLine& json, const Grid::Cell& cell) {
    const Grid::Look& look = cell.look;
    json.BeginObject().Member("text", cell.Text()).Member("bold", look.bold);
    json.Member("italic", look.italic).Member("align", static_cast<int>(look.align)).Key("back");
    if (look.back)
        json.Colour(*look.back);
    else
        json.Null();
    json.EndObject();
}

void GridMembers(JsonLine& json, const Grid& grid) {
    json.Member("rows", grid.Rows()).Member("columns", grid.Columns()).Key("widths").BeginList();
    for (int column = 0; column < grid.Columns(); ++column) json.Value(grid.Width(column));
    json.EndList().Key("cells").BeginList();
    for (int row = 0; row < grid.Rows(); ++row) {
        json.BeginList();
        for (int column = 0; column < grid.Columns(); ++column) Cell(json, grid.At(row, column));
        json.EndList();
    }
    json.EndList();
}

void AxisMember(JsonLine& json, const char* key, const Graph::Axis& axis) {
    json.Key(key).BeginObject().Member("min", axis.min).Member("max", axis.max).EndObject();
}

void CursorMember(JsonLine& json, int index, const Graph::Cursor& cursor) {
    json.BeginObject().Member("index", index);
    json.Member("kind", cursor.horizontal ? "horizontal" : "vertical");
    json.Member("x", cursor.x).Member("y", cursor.y).Member("visible", cursor.visible);
    json.EndObject();
}

void GraphMembers(JsonLine& json, const Graph& graph) {
    const Graph::Plot& plot = graph.Curve();
    json.Key("plot").BeginObject().Member("first", plot.first).Member("step", plot.step);
    json.Key("values").BeginList();
    for (const double value : plot.values) json.Value(value);
    json.EndList().EndObject();
    AxisMember(json, "x", graph.ShownAxes().x);
    AxisMember(json, "y", graph.ShownAxes().y);
    json.Key("cursors").BeginList();
    for (int index = 0; index < graph.CursorCount(); ++index)
        CursorMember(json, index, graph.CursorAt(index));
    json.EndList().Key("labels").BeginList();
    for (const Graph::Text& label : graph.Labels())
        json.BeginObject()
            .Member("x", label.x)
            .Member("y", label.y)
            .Member("text", label.text)
            .EndObject();
    json.EndList().Member("trackMode", static_cast<int>(graph.Track()));
}

// What comes before the colours, by kind.
void OwnMembers(JsonLine& json, const Control& control, int member) {
    switch (control.GetKind()) {
        case Kind::Label:
            json.Member("caption", As<Label>(control).caption.Get());
            break;
        case Kind::Button: {
            const auto& button = As<Button>(control);
            json.Member("caption", button.caption.Get()).Member("picture", button.picture.Get());
            json.Member("tag", button.tag.Get());
            break;
        }
        case Kind::MenuItem: {
            const auto& item = As<MenuItem>(control);
            json.Member("caption", item.caption.Get()).Member("checked", item.checked.Get());
            break;
        }
        case Kind::TextBox:
            json.Member("text", As<TextBox>(control).Text());
            break;
        case Kind::CheckBox: {
            const auto& box = As<CheckBox>(control);
            json.Member("caption", box.caption.Get()).Member("checked", box.Checked());
            break;
        }
        case Kind::OptionGroup: {
            const auto& group = As<OptionGroup>(control);
            if (member < 0) {
                json.Member("selected", group.Selected());
                break;
            }
            json.Member("caption", group.Options()[static_cast<std::size_t>(member)].caption);
            json.Member("checked", group.Selected() == member);
            break;
        }
        case Kind::Picture: {
            const auto& picture = As<Picture>(control);
            json.Member("picture", picture.image.Get()).Member("tag", picture.tag.Get());
            break;
        }
        case Kind::Frame:
            json.Member("caption", As<Frame>(control).caption.Get());
            break;
        default:
            break;
    }
}

// What comes at the end, by kind.
void ContentMembers(JsonLine& json, const Control& control) {
    switch (control.GetKind()) {
        case Kind::Frame:
            Place(json, As<Frame>(control).place);
            break;
        case Kind::RichText:
            json.Member("rtf", As<RichText>(control).rtf.Get());
            break;
        case Kind::List:
            ListMembers(json, As<List>(control));
            break;
        case Kind::Grid:
            GridMembers(json, As<Grid>(control));
            break;
        case Kind::Graph:
            GraphMembers(json, As<Graph>(control));
            break;
        default:
            break;
    }
}

std::string DumpWindow(const Window& window) {
    JsonLine json;
    json.BeginObject().Member("name", window.Name()).Member("caption", window.caption.Get());
    json.Member("visible", window.visible.Get());
    Place(json, window.place);
    json.Member("topmost", window.topMost.Get()).Member("tag", window.tag.Get()).EndObject();
    return json.Text();
}

}  // namespace

std::string DumpControl(const Control& control, int member) {
    if (control.GetKind() == Kind::Window) return DumpWindow(As<Window>(control));
    const bool isMember = control.GetKind() == Kind::OptionGroup && member >= 0;
    JsonLine json;
    json.BeginObject();
    json.Member("name",
                isMember ? As<OptionGroup>(control).Options()[static_cast<std::size_t>(member)].name
                         : control.Name());
    json.Member("kind", isMember ? "option" : KindName(control.GetKind()));
    json.Member("enabled", control.enabled.Get()).Member("visible", control.visible.Get());
    OwnMembers(json, control, member);
    OptionalColour(json, "back", control.back);
    OptionalColour(json, "fore", control.fore);
    if (!control.tooltip->empty()) json.Member("tooltip", control.tooltip.Get());
    ContentMembers(json, control);
    return json.EndObject().Text();
}

}  // namespace kelvra::console
