// The colour table and the sheet that its names are replaced in, against a model that knows nothing
// of QString's own splitting and replacing. The input is the table, a zero byte, and the sheet.

#include "fuzz/Require.h"
#include "UI/Impl/StyleSheetColors.h"

#include <map>
#include <optional>
#include <string>

namespace {

using Colors = std::map<std::u16string, std::u16string>;

// Texts that replacements have made longer than this aren't compared.
constexpr std::size_t LongestText = 1 << 13;

Colors ModelParse(const std::u16string &table)
{
    Colors colors;
    std::u16string name;
    std::u16string value;
    int equalsSigns = 0;
    const auto endLine = [&] {
        if (equalsSigns == 1)
            colors[name] = value;
        name.clear();
        value.clear();
        equalsSigns = 0;
    };
    for (char16_t unit : table) {
        if (unit == u'\n')
            endLine();
        else if (unit == u'=')
            ++equalsSigns;
        else
            (equalsSigns == 0 ? name : value) += unit;
    }
    endLine();
    return colors;
}

bool StandsAt(const std::u16string &text, std::size_t position, const std::u16string &word)
{
    return text.compare(position, word.size(), word) == 0;
}

std::optional<std::u16string> ModelReplace(std::u16string text, const Colors &colors)
{
    for (const auto &[name, value] : colors) {
        std::u16string replaced;
        for (std::size_t position = 0; position < text.size();) {
            if (name.empty() || !StandsAt(text, position, name)) {
                // An empty name stands in front of every letter and at the end.
                replaced += name.empty() ? value : std::u16string();
                replaced += text[position++];
            } else {
                replaced += value;
                position += name.size();
            }
            if (replaced.size() > LongestText)
                return std::nullopt;
        }
        text = name.empty() ? replaced + value : replaced;
    }
    return text;
}

Colors ToModel(const QMap<QString, QString> &colors)
{
    Colors model;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color)
        model.emplace(color.key().toStdU16String(), color.value().toStdU16String());
    return model;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const int end = input.indexOf('\0');
    const QString table = QString::fromUtf8(end < 0 ? input : input.left(end));
    const QString sheet = end < 0 ? QString() : QString::fromUtf8(input.mid(end + 1));

    const auto colors = StyleSheetColors::Parse(table);
    const Colors expected = ModelParse(table.toStdU16String());
    Require(ToModel(colors) == expected, "the table is read as the model reads it");

    const auto text = ModelReplace(sheet.toStdU16String(), expected);
    if (text) {
        Require(StyleSheetColors::Replace(sheet, colors).toStdU16String() == *text,
                "the names are replaced as in the model");
    }
    return 0;
}
