// The text of a face: "( x y z ) ( x y z ) ( x y z ) texture shift shift rotate scale scale".
#pragma once

#include "base/tokenizer.h"
#include "geometry/face.h"

namespace velk {

// Reads the rest of a face whose opening "(" is the last token, and returns how many of its plane points
// had fractions, which are cut off. Fatal: "parsing map file" when a parenthesis is missing, what the
// tokenizer finds wrong, and texture axes in square brackets, a form Velk does not read.
int ReadFace(Tokenizer& tokens, face& f);

// The two ways of ReadFace, which agree on every line that both can read.
// Token by token; reads every form that is allowed.
int ReadFaceTokens(Tokenizer& tokens, face& f);
// Straight over the bytes of a line in the usual form; -1, with the tokenizer where it was, for any other.
int ReadFaceLine(Tokenizer& tokens, face& f);

}  // namespace velk
