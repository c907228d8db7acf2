#include "cli/tokens_shown.h"

#include "cli/plain_text.h"

namespace orvane {

void WriteTokens(JsonWriter& json, const FormulaTokens& tokens) {
  json.BeginArray();
  for (const FormulaToken& token : tokens) {
    json.BeginArray().String(token.View()).Number(token.kind).EndArray();
  }
  json.EndArray();
}

std::string UnrecognisedPieces(const FormulaTokens& tokens) {
  std::string list;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind != TokenUnknown) continue;
    Text piece(tokens[i].View());
    // The halves of a surrogate pair are tokens of their own, but one character to a person.
    if (i + 1 < tokens.size()) {
      const Text pair = piece + tokens[i + 1].text[0];
      if (IsSurrogatePairAt(pair, 0)) {
        piece = pair;
        ++i;
      }
    }
    list += list.empty() ? "not recognized: \"" : ", \"";
    list += IsControl(piece.front()) ? "\\u" + HexText(piece.front(), 4) : PlainText(piece);
    list += '"';
  }
  return list.empty() ? list : list + "; check spelling and capitalization";
}

}  // namespace orvane
