// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/evaluate.h"

#include "console/json_line.h"
#include "parser/math_parser.h"

namespace kelvra::console {

namespace {

void Argument(JsonLine& json, const parser::ExprArg& argument) {
    json.BeginObject().Member("Idx", argument.Idx).Member("Name", argument.Name);
    json.Member("Value", argument.Value).EndObject();
}

void Entry(JsonLine& json, const parser::ETEntry& entry) {
    json.BeginObject().Member("Fun", entry.Fun).Member("Id", entry.Id).Key("Arg").BeginList();
    for (const parser::ExprArg& argument : entry.Arg) Argument(json, argument);
    json.EndList().Member("ArgTop", entry.ArgTop).Member("ArgOf", entry.ArgOf);
    json.Member("ArgIdx", entry.ArgIdx).Member("Value", entry.Value);
    json.Member("PosInExpr", entry.PosInExpr).Member("PriLvl", entry.PriLvl);
    json.Member("PriIdx", entry.PriIdx).EndObject();
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
    for (const parser::ETEntry& entry : parser.ET().subspan(1)) Entry(json, entry);
    return json.EndList().EndObject().Text();
}

}  // namespace kelvra::console
