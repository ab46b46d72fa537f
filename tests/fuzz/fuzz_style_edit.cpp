// A chain of edits of a style sheet, against a model that matches by hand instead of by regular
// expression. The input is the number of edits, five bytes for each (a letter and four operands)
// and the sheet.

#include "fuzz/Require.h"
#include "UI/Impl/qt/StyleSheetEdit.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace {

// The declarations that an edit takes away: "name : value;".
struct Kind {
    std::string name;
    std::string
        valueUnits; ///< what a value is made of; blanks in front of it may stand in any case
    bool oneUnit = false; ///< the value is a single unit
    std::string nameEnd {}; ///< if not empty, small letters stand between it and the name
};

class Matcher {
public:
    Matcher(const std::u16string &text, std::size_t position)
        : m_text(text)
        , m_position(position)
    {
    }

    std::size_t position() const { return m_position; }

    bool word(std::string_view word)
    {
        for (char letter : word) {
            if (m_position == m_text.size() || m_text[m_position] != static_cast<char16_t>(letter))
                return false;
            ++m_position;
        }
        return true;
    }

    bool unit(std::string_view anyOf)
    {
        if (m_position == m_text.size() || m_text[m_position] > 0x7f
            || anyOf.find(static_cast<char>(m_text[m_position])) == std::string_view::npos)
            return false;
        ++m_position;
        return true;
    }

    int run(std::string_view anyOf)
    {
        int length = 0;
        while (unit(anyOf))
            ++length;
        return length;
    }

private:
    const std::u16string &m_text;
    std::size_t m_position;
};

const std::string SmallLetters = "abcdefghijklmnopqrstuvwxyz";
const std::string Letters = SmallLetters + "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const std::string LettersAndDigits = Letters + "123456789"; // no 0
const std::string Blanks = " \t";

// Returns the position behind the declaration of this kind that starts at \a position, or 0.
std::size_t MatchAt(const std::u16string &text, std::size_t position, const Kind &kind)
{
    Matcher matcher(text, position);
    if (!matcher.word(kind.name))
        return 0;
    if (!kind.nameEnd.empty()) {
        matcher.run(SmallLetters);
        if (!matcher.word(kind.nameEnd))
            return 0;
    }
    matcher.run(Blanks);
    if (!matcher.word(":"))
        return 0;
    matcher.run(Blanks);
    const int length = matcher.run(kind.valueUnits);
    if ((kind.oneUnit && length != 1) || !matcher.word(";"))
        return 0;
    return matcher.position();
}

std::u16string Without(const std::u16string &text, const Kind &kind)
{
    std::u16string rest;
    const auto first = static_cast<char16_t>(kind.name.front());
    std::size_t kept = 0;
    for (std::size_t position = 0; position < text.size(); ++position) {
        const std::size_t end = text[position] == first ? MatchAt(text, position, kind) : 0;
        if (end != 0) {
            rest.append(text, kept, position - kept);
            kept = end;
            position = end - 1;
        }
    }
    return rest.append(text, kept);
}

std::u16string Edited(std::u16string text, const std::vector<Kind> &kinds,
                      const std::string &declaration, std::size_t firstBrace)
{
    for (const Kind &kind : kinds)
        text = Without(text, kind);
    std::size_t position = text.rfind(u'}');
    if (position == std::u16string::npos || position < firstBrace)
        position = text.size();
    return text.substr(0, position) + std::u16string(declaration.begin(), declaration.end())
        + text.substr(position);
}

const Kind Border { "border", LettersAndDigits + Blanks };
const Kind BorderStyle { "border-style", LettersAndDigits + Blanks };
const Kind BorderSideStyle { "border-", LettersAndDigits + Blanks, false, "-style" };
const Kind BorderLeft { "border-left-width", LettersAndDigits };
const Kind BorderTop { "border-top-width", LettersAndDigits };
const Kind BorderRight { "border-right-width", LettersAndDigits };
const Kind BorderBottom { "border-bottom-width", LettersAndDigits };
const Kind BorderColor { "border-color", LettersAndDigits, true };
const Kind Background { "background-color", LettersAndDigits + Blanks + "#" };
const Kind TextAlign { "text-align", Letters + Blanks };
const Kind FontWeight { "font-weight", Letters + Blanks };

const std::string NoMenuArrow = "QPushButton::menu-indicator{image:url(none.jpg);}";

using Operands = std::array<int, 4>;

float Width(int operand)
{
    // Thirds of a pixel, of either sign, and one width that needs an exponent.
    return operand == 127 ? 1e20F : static_cast<float>(operand) / 3;
}

std::string WidthText(int operand)
{
    std::array<char, 64> text {};
    std::snprintf(text.data(), text.size(), "%gpx;", static_cast<double>(Width(operand)));
    return text.data();
}

// Some are out of range, which gives an invalid colour; its name is that of black.
QColor Color(const Operands &operands)
{
    return QColor(operands[0] * 2, operands[1] * 2, operands[2] * 2);
}

const std::string HexadecimalDigits = "0123456789abcdef";

std::string ColorName(const Operands &operands)
{
    std::string name = "#";
    for (std::size_t i = 0; i < 3; ++i) {
        if (operands[i] < 0)
            return "#000000";
        const int value = operands[i] * 2;
        name += HexadecimalDigits[static_cast<std::size_t>(value / 16)];
        name += HexadecimalDigits[static_cast<std::size_t>(value % 16)];
    }
    return name;
}

std::u16string WithoutWord(const std::u16string &text, const std::string &word)
{
    std::u16string rest;
    for (std::size_t position = 0; position < text.size();) {
        Matcher matcher(text, position);
        if (matcher.word(word))
            position = matcher.position();
        else
            rest += text[position++];
    }
    return rest;
}

std::string TextAlignDeclaration(int alignment)
{
    const std::array<std::string, 3> sides { "left", "right", "center" };
    const auto index = static_cast<std::size_t>(alignment);
    return index < sides.size() ? "text-align:" + sides[index] + ";" : std::string();
}

struct Edit {
    QString (*edit)(const QString &, const Operands &);
    std::u16string (*model)(const std::u16string &, const Operands &);
};

const Edit Edits[] = {
    { [](const QString &sheet, const Operands &operands) {
         return StyleSheetEdit::WithBorderWidth(sheet, Width(operands[0]));
     },
      [](const std::u16string &sheet, const Operands &operands) {
          return Edited(sheet,
                        { Border, BorderStyle, BorderLeft, BorderTop, BorderRight, BorderBottom },
                        "border-style:solid;border-width:" + WidthText(operands[0]), 1);
      } },
    { [](const QString &sheet, const Operands &operands) {
         return StyleSheetEdit::WithBorderWidths(sheet, Width(operands[0]), Width(operands[1]),
                                                 Width(operands[2]), Width(operands[3]));
     },
      [](const std::u16string &sheet, const Operands &operands) {
          std::string declaration;
          const std::array<std::string, 4> sides { "left", "top", "right", "bottom" };
          for (const std::string &side : sides)
              declaration += "border-" + side + "-style:solid;";
          for (std::size_t side = 0; side < sides.size(); ++side)
              declaration += "border-" + sides[side] + "-width:" + WidthText(operands[side]);
          return Edited(sheet,
                        { Border, BorderStyle, BorderSideStyle, BorderLeft, BorderTop, BorderRight,
                          BorderBottom },
                        declaration, 1);
      } },
    { [](const QString &sheet, const Operands &operands) {
         return StyleSheetEdit::WithBorderColor(sheet, Color(operands));
     },
      [](const std::u16string &sheet, const Operands &operands) {
          return Edited(sheet, { Border, BorderColor },
                        "border-color: " + ColorName(operands) + ";", 1);
      } },
    { [](const QString &sheet, const Operands &operands) {
         return StyleSheetEdit::WithBackgroundColor(sheet, Color(operands));
     },
      [](const std::u16string &sheet, const Operands &operands) {
          return Edited(sheet, { Background }, "background-color: " + ColorName(operands) + ";", 0);
      } },
    { [](const QString &sheet, const Operands &operands) {
         return StyleSheetEdit::WithTextAlignment(
             sheet, static_cast<CFxUIBaseView::TextAlignment>(operands[0]));
     },
      [](const std::u16string &sheet, const Operands &operands) {
          return Edited(sheet, { TextAlign }, TextAlignDeclaration(operands[0]), 0);
      } },
    { [](const QString &sheet, const Operands &operands) {
         return StyleSheetEdit::WithBoldText(sheet, operands[0] > 0);
     },
      [](const std::u16string &sheet, const Operands &operands) {
          return Edited(sheet, { FontWeight },
                        operands[0] > 0 ? "font-weight: bold;" : "font-weight: normal;", 0);
      } },
    { [](const QString &sheet, const Operands &operands) {
         return StyleSheetEdit::WithMenuArrow(sheet, operands[0] > 0);
     },
      [](const std::u16string &sheet, const Operands &operands) {
          return operands[0] > 0 ? WithoutWord(sheet, NoMenuArrow)
                                 : sheet + std::u16string(NoMenuArrow.begin(), NoMenuArrow.end());
      } },
};

void IgnoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    // Qt warns of colours out of range.
    static const QtMessageHandler previous = qInstallMessageHandler(IgnoreMessage);
    static_cast<void>(previous);

    constexpr std::size_t BytesOfAnEdit = 5;
    const std::size_t edits = size == 0 ? 0 : data[0] % 8;
    if (size < 1 + edits * BytesOfAnEdit)
        return 0;
    const uint8_t *next = data + 1;
    const uint8_t *sheetStart = next + edits * BytesOfAnEdit;
    QString sheet = QString::fromUtf8(reinterpret_cast<const char *>(sheetStart),
                                      static_cast<int>(data + size - sheetStart));
    std::u16string model = sheet.toStdU16String();
    while (next != sheetStart) {
        const Edit &edit = Edits[*next++ % std::size(Edits)];
        Operands operands {};
        for (int &operand : operands)
            operand = static_cast<int8_t>(*next++);
        sheet = edit.edit(sheet, operands);
        model = edit.model(model, operands);
        Require(sheet.toStdU16String() == model, "the sheet is edited as in the model");
    }
    return 0;
}
