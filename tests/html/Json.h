#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Just enough JSON for the conformance data: strings keep lone surrogates (the tokenizer
// tests feed them in on purpose), numbers stay doubles, objects keep their order.
namespace json {

struct Value {
    enum class Kind { Null, Bool, Number, String, Array, Object };

    Kind kind = Kind::Null;
    bool boolean = false;
    double number = 0;
    std::u32string string;
    std::vector<Value> array;
    std::vector<std::pair<std::u32string, Value>> object;

    bool IsNull() const { return kind == Kind::Null; }
    // nullptr when this is not an object or has no such member.
    const Value* Find(std::u32string_view key) const;
};

struct SyntaxError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

Value Parse(std::string_view utf8);

} // namespace json
