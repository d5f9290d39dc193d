/* A user's program, in C and C++: every name once, with a result that tells whether it reached its operation, and what
   an array bounds. */
#include <stdint.h>

#ifdef __cplusplus
#include "quvex_line.h"
#define CALL(name) quvex::name
#define NOTHING nullptr
typedef char16_t wide_character;
#else
#include "quvex_line.h"
#define CALL(name) quvex_##name
#define NOTHING ((void*)0)
typedef uint16_t wide_character;
#endif

/* The exit status is the line that failed. */
#define EXPECT(condition) \
  if (!(condition)) return __LINE__

/* The status of a text that is built in each language's own way. */
static int said(const char* expected) {
#ifdef __cplusplus
  quvex::text<8> text;
  text.add(expected).add_character('=').add_integer(-1);
  return text.is_cut() || quvex::compare(text, "ab=-1") != 0 || !text.add_integer(10000).is_cut();
#else
  char units[8];
  quvex_text text = quvex_text_in(units);
  quvex_add(&text, expected);
  quvex_add_character(&text, '=');
  quvex_add_integer(&text, -1, 10);
  if (text.is_cut || quvex_compare(units, "ab=-1") != 0) return __LINE__;
  quvex_add_integer(&text, 10000, 10);
  return !text.is_cut;
#endif
}

int main(void) {
  const char byte[] = "\xe9";
  char text[40], few[8], *words[20], *two[2];
  wide_character wide[40];
  uint32_t cursor = 0;
  volatile int32_t unknown = 35; /* a radix that only the run knows */
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

  /* Bounded by the array, by a size, by nothing. */
  CALL(copy)(text, "1234567890");
  CALL(copy)(few, text + 1);
  CALL(copy_bounded)(few + 1, 2, text + 1);
  CALL(append)(few, text);
  EXPECT(CALL(length)(few) == 7);
  CALL(copy)(text, "a b c");
  EXPECT(CALL(split)(text, " ", two) == -2 && CALL(compare)(two[1], "b") == 0 && text[4] == 'c');
  EXPECT(CALL(split_bounded)(text, " ", words, 1) == 1 && CALL(split_unbounded)(text, " ", words) == 1);
  EXPECT(CALL(replace)("a-b", "-", "1234567", few) == 9 && few[0] == 0);
  EXPECT(CALL(replace_bounded)("a-b", "-", "+", few, 4) == 3 && CALL(replace)("a", "a", "bc", NOTHING) == 2);
  EXPECT(CALL(replace_unbounded)("a-b", "-", "", few) == 2 && CALL(compare)(few, "ab") == 0);
  EXPECT(*CALL(to_text)(5, few, 36) == '5' && *CALL(to_text)(5, few, unknown) == 0);
  EXPECT(*CALL(to_text_bounded)(5, few, 8, 36) == '5' && *CALL(to_text_unbounded)(5, few, 2) == '1');
  CALL(copy_unbounded)(few, "ab");
  CALL(append_unbounded)(few, "cd");
  EXPECT(CALL(compare)(few, "abcd") == 0);
  CALL(copy)(wide, u"a");
  CALL(append_counted_unbounded)(wide, u"bc", 1);
  EXPECT(CALL(compare)(wide, u"ab") == 0 && *CALL(escape)(wide, few) == 'a' && *CALL(widen)("b", wide) == 'b');

  /* Lines. */
  EXPECT(CALL(read_integer)("-12;", -20, 20).length == 3 && CALL(read_integer)(u"21", -20, 20).length == 0);
  EXPECT(CALL(read_hexadecimal)("0xfF", 255).value == 255);
  CALL(copy)(text, "\"a,b\",");
  cursor = 0;
  EXPECT(CALL(compare)(CALL(next_field)(text, &cursor, ","), "a,b") == 0);
  EXPECT(*CALL(next_field)(text, &cursor, ",") == 0 && !CALL(next_field)(text, &cursor, ","));
  return said(few);
}
