// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/dump.h"
#include "console/json_line.h"
#include "controls/rtf_reader.h"
#include "controls/visit.h"

namespace kelvra::console {

namespace {

using namespace controls;

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

// What a reader sees, a line break after each paragraph but the last.
std::string SeenText(const RichText& text) {
    std::string seen;
    for (const std::string& line : RtfLines(text.rtf.Get())) seen.append(line).append("\n");
    if (!seen.empty()) seen.pop_back();
    return seen;
}

// The members before the colours, by kind.
struct OwnMembers {
    JsonLine& json;

    void operator()(const Label& label) const { Caption(label); }
    void operator()(const Frame& frame) const { Caption(frame); }
    void operator()(const Button& button) const {
        Caption(button).Member("picture", button.picture.Get()).Member("tag", button.tag.Get());
    }
    void operator()(const MenuItem& item) const {
        Caption(item).Member("checked", item.checked.Get());
    }
    void operator()(const TextBox& box) const { json.Member("text", box.Text()); }
    void operator()(const RichText& text) const { json.Member("text", SeenText(text)); }
    void operator()(const CheckBox& box) const { Caption(box).Member("checked", box.Checked()); }
    void operator()(const Option& option) const {
        Caption(option).Member("checked", option.Checked());
    }
    void operator()(const OptionGroup& group) const { json.Member("selected", group.Selected()); }
    void operator()(const Picture& picture) const {
        json.Member("picture", picture.image.Get()).Member("tag", picture.tag.Get());
    }
    void operator()(const Control&) const {}

private:
    template <class Captioned>
    JsonLine& Caption(const Captioned& control) const {
        return json.Member("caption", control.caption.Get());
    }
};

// The members at the end, by kind.
struct ContentMembers {
    JsonLine& json;

    void operator()(const Frame& frame) const { Place(json, frame.place); }
    void operator()(const RichText& text) const { json.Member("rtf", text.rtf.Get()); }
    void operator()(const List& list) const { ListMembers(json, list); }
    void operator()(const Grid& grid) const { GridMembers(json, grid); }
    void operator()(const Graph& graph) const { GraphMembers(json, graph); }
    void operator()(const Control&) const {}
};

// For all kinds except windows.
std::string DumpInside(const Control& control) {
    JsonLine json;
    json.BeginObject().Member("name", control.Name()).Member("kind", KindName(control.GetKind()));
    json.Member("enabled", control.enabled.Get()).Member("visible", control.visible.Get());
    Visit(control, OwnMembers{json});
    OptionalColour(json, "back", control.back);
    OptionalColour(json, "fore", control.fore);
    if (!control.tooltip->empty()) json.Member("tooltip", control.tooltip.Get());
    Visit(control, ContentMembers{json});
    return json.EndObject().Text();
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

std::string DumpControl(const Control& control) {
    const auto* window = As<const Window>(control);
    return window != nullptr ? DumpWindow(*window) : DumpInside(control);
}

}  // namespace kelvra::console
