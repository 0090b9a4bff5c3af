// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/evaluate.h"

#include "console/json_line.h"
#include "parser/math_parser.h"

namespace kelvra::console {

namespace {

void Argument(JsonLine& json, const parser::Argument& argument) {
    json.BeginObject().Member("Idx", argument.variable).Member("Name", argument.name);
    json.Member("Value", argument.value).EndObject();
}

void Entry(JsonLine& json, const parser::ExpressionEntry& entry) {
    json.BeginObject()
        .Member("Fun", entry.function)
        .Member("Id", entry.code)
        .Key("Arg")
        .BeginList();
    for (const parser::Argument& argument : entry.arguments) Argument(json, argument);
    json.EndList().Member("ArgTop", entry.argumentCount).Member("ArgOf", entry.receiver);
    json.Member("ArgIdx", entry.receivingArgument).Member("Value", entry.value);
    json.Member("PosInExpr", entry.position).Member("PriLvl", entry.priority);
    json.Member("PriIdx", entry.order).EndObject();
}

}  // namespace

std::string EvaluateToJson(std::string_view formula,
                           const std::map<std::string, double, std::less<>>& variables,
                           platform::Host& host) {
    parser::MathParser parser(host.random, host.computer.Numbers());
    const bool ok = parser.StoreExpression(formula);
    JsonLine json;
    json.BeginObject().Member("formula", parser.Expression()).Member("ok", ok);
    json.Member("vartop", parser.VarTop()).Key("names").BeginList();
    for (int i = 1; i <= parser.VarTop(); ++i) {
        const std::string_view name = parser.VarName(i);
        json.Value(name);
        if (const auto found = variables.find(name); found != variables.end())
            parser.VarValue(i, found->second);
    }
    json.EndList().Member("error_compile", parser.ErrorDescription());
    const double value = parser.Eval();
    json.Member("value", value).Member("error_eval", parser.ErrorDescription());
    json.Key("table").BeginList();
    for (const parser::ExpressionEntry& entry : parser.Entries().subspan(1)) Entry(json, entry);
    return json.EndList().EndObject().Text();
}

}  // namespace kelvra::console
