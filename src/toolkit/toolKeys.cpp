#include "toolkit/toolKeys.h"

#include "modAPI/textForms.h"
#include "storage/NumberForm.h"

namespace ormala {

namespace {

constexpr int fileFlag(bool value) {
    return value ? -1 : 0;
}

}  // namespace

double finiteValue(INIFile& file, std::string_view key, double defaultValue) {
    return numberFromText(file.numberValue(key, defaultValue)).value_or(0);
}

bool flagValue(INIFile& file, std::string_view key, bool defaultValue) {
    return file.LongValue(key, fileFlag(defaultValue)) != 0;
}

bool ToolKeyWriter::number(std::string_view key, double value) {
    file_.setDoubleValue(key, value);
    return true;
}

bool ToolKeyWriter::factor(std::string_view key, double value) {
    return number(key, value);
}

bool ToolKeyWriter::integer(std::string_view key, int value) {
    file_.setLongValue(key, value);
    return true;
}

bool ToolKeyWriter::flag(std::string_view key, bool value) {
    return integer(key, fileFlag(value));
}

bool ToolKeyWriter::text(std::string_view key, const std::string& value) {
    file_.setStringValue(key, value);
    return true;
}

bool ToolKeyText::number(std::string_view key, double value) {
    return text(key, numberText(value));
}

bool ToolKeyText::factor(std::string_view key, double value) {
    return number(key, value);
}

bool ToolKeyText::integer(std::string_view key, int value) {
    return number(key, value);
}

bool ToolKeyText::flag(std::string_view key, bool value) {
    return integer(key, fileFlag(value));
}

bool ToolKeyText::text(std::string_view key, const std::string& value) {
    text_.append(key).append("=").append(value).append("\n");
    return true;
}

bool ToolKeyComparer::number(std::string_view key, double value) {
    return SameNumberText(finiteValue(file_, key, 0), value);
}

bool ToolKeyComparer::factor(std::string_view key, double value) {
    return finiteValue(file_, key, 0) == value;
}

bool ToolKeyComparer::integer(std::string_view key, int value) {
    return file_.LongValue(key, 0) == value;
}

bool ToolKeyComparer::flag(std::string_view key, bool value) {
    return integer(key, fileFlag(value));
}

bool ToolKeyComparer::text(std::string_view key, const std::string& value) {
    return file_.TextValue(key, "") == value;
}

}  // namespace ormala
