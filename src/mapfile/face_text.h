// The text of a face: "( x y z ) ( x y z ) ( x y z ) texture shift shift rotate scale scale".
#pragma once

#include "base/tokenizer.h"
#include "geometry/face.h"

namespace velk {

// What a missing parenthesis is reported as.
struct FaceMessages {
  const char* noOpen = "parsing map file";
  const char* noClose = "parsing map file";
};

// Reads the rest of a face whose opening "(" is the last token, and returns how many of its plane points
// had fractions, which are cut off. Fatal: a missing parenthesis, what the tokenizer finds wrong, and texture
// axes in square brackets, a form Velk does not read.
int ReadFace(Tokenizer& tokens, face& f, const FaceMessages& messages = {});

// The two ways of ReadFace, which agree on every line that both can read.
// Token by token; reads every form that is allowed.
int ReadFaceTokens(Tokenizer& tokens, face& f, const FaceMessages& messages = {});
// Straight over the bytes of a line in the usual form; -1, with the tokenizer where it was, for any other.
int ReadFaceLine(Tokenizer& tokens, face& f);

}  // namespace velk
