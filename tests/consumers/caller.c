/* A user's program, in C and C++: every name once, with a result that tells whether it reached its operation. */
#include <stdint.h>

#ifdef __cplusplus
#include "quvex.hpp"
#define CALL(name) quvex::name
typedef char16_t wide_character;
#else
#include "quvex_names.h"
#define CALL(name) quvex_##name
typedef uint16_t wide_character;
#endif

/* The exit status is the line that failed. */
#define EXPECT(condition) \
  if (!(condition)) return __LINE__

int main(void) {
  const char byte[] = "\xe9";
  char text[40], *words[4];
  wide_character wide[40];
  uint32_t cursor = 0;
  CALL(copy)(text, "One,two");
  CALL(append)(text, ",three");
  EXPECT(CALL(compare)(text, "One,two,three") == 0);
  CALL(copy_bounded)(text, 4, "One,two");
  CALL(append_bounded)(text, 6, "12345");
  EXPECT(CALL(compare)(text, "One12") == 0 && CALL(compare)("abc", "abd") == -3);
  CALL(copy_counted)(text, "un", 2);
  EXPECT(CALL(compare_counted)(text, "une", 3) == 0 && CALL(compare_folded)(text, "UNE12") == 0);
  EXPECT(CALL(compare_folded_counted)(text, "UNX", 3) == -3 && CALL(length)(text) == 5);
  CALL(to_upper)(text);
  EXPECT(*CALL(find_character)(text, 'N') == 'N' && CALL(find)(text, "E1") == &text[2]);
  CALL(to_lower)(text);
  EXPECT(CALL(find_folded)(text, "E1") == &text[2]);
  EXPECT(CALL(character_to_lower)('A') == 'a' && CALL(character_to_upper)('a') == 'A');
  CALL(copy)(text, " a b ");
  EXPECT(CALL(trim)(text, " ") == 3 && CALL(replace)("a-b", "-", "+++", text) == 5 && CALL(length)(text) == 5);
  EXPECT(CALL(split)(text, "+", words) == 2 && *words[1] == 'b');
  EXPECT(CALL(next_token)(text, &cursor, ",") == text && cursor == 1);
  EXPECT(CALL(to_integer)(CALL(to_text)(-255, text, 10)) == -255);
  EXPECT(CALL(length)(CALL(widen)("wid", wide, 40)) == 3);
  CALL(append_counted)(wide, u"e", 1);
  EXPECT(CALL(compare)(wide, u"wide") == 0);
  CALL(append_bounded_counted)(wide, 6, u"wide", 4);
  CALL(copy_units)(&wide[1], wide, 5);
  EXPECT(CALL(compare)(CALL(escape)(wide, text, 40), "idew") == 0);
  CALL(widen_units)("\x80", wide, 1);
  EXPECT(CALL(find_character)(wide, 0x80) == wide);
  EXPECT(CALL(find_character)(byte, byte[0]) == byte && CALL(character_to_lower)(byte[0]) == 0xe9);
  return 0;
}
