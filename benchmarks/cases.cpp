// Calls every operation, and the C library's counterpart of it, once for each case and length, all from `measured`,
// whose calls benchmarks/count.py counts. One line is printed for each call. Arguments choose a part: `short` two
// lengths, `ours` or `theirs` one side.

#include "board.h"
#include "quvex.h"

// Addresses are all that is asked of them: the libraries' headers differ, and not all of them declare all of these.
extern "C" {
void atoi();
void itoa();
void memcpy();
void strcasecmp();
void strcasestr();
void strcat();
void strchr();
void strcmp();
void strcpy();
void strlcat();
void strlcpy();
void strlen();
void strncasecmp();
void strncat();
void strncmp();
void strncpy();
void strstr();
void strtok_r();
}

namespace {

// Any of them: no operation takes more than four arguments, and each fits a register.
using Operation = uint32_t(uint32_t, uint32_t, uint32_t, uint32_t);

struct Function {
  const char* name;
  void (*address)();
};
#define F(name) \
  { #name, (void (*)())name }
constexpr Function none = {nullptr, nullptr};

struct Case {
  const char* name;
  const char16_t* text;  // Repeated up to the last unit, which is '!'.
  const char* needle;    // Or the set.
  const char* arguments;
  Function narrow, wide;
  const char* library_arguments;
  Function library;
};

constexpr uint32_t longest = 1024;
// Of text and of numerals: all, and two of them alone.
const uint32_t lengths[][5] = {{7, 256, 512, longest, 0}, {1, 4, 7, 10, 0}};
const uint32_t two_lengths[][3] = {{7, 512, 0}, {7, 10, 0}};

constexpr const char16_t* upper = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr const char16_t* blanks = u"  ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr const char16_t* words = u"ABCDEFG ";
constexpr const char16_t* numerals = u"1234567890";

// Arguments: t the text, o the same but for the last unit, f the same in the other case, n the needle or set, r a
// replacement of three units, d and D the destination, aligned as the text and not, e the same, once emptied,
// 0 null, c the length, b its bytes if wide, s a size that holds it, E one for escapes, ! the last unit,
// C and l a letter to change, k a cursor, v a value of as many digits, x the radix ten.
const Case cases[] = {
    {"length", upper, "", "t", F(QUVEX_002014), F(QUVEX_002039), "t", F(strlen)},
    {"copy", upper, "", "dt", F(QUVEX_002009), F(QUVEX_002034), "dt", F(strcpy)},
    {"copy_bounded", upper, "", "dst", F(QUVEX_002010), F(QUVEX_002035), "dts", F(strlcpy)},
    {"copy_counted", upper, "", "dts", F(QUVEX_002017), F(QUVEX_002044), "dts", F(strncpy)},
    {"append", upper, "", "et", F(QUVEX_002005), F(QUVEX_002030), "et", F(strcat)},
    {"append_bounded", upper, "", "est", F(QUVEX_002006), F(QUVEX_002031), "ets", F(strlcat)},
    {"append_counted", upper, "", "ets", none, F(QUVEX_002041), "ets", F(strncat)},
    {"append_bounded_counted", upper, "", "ests", none, F(QUVEX_002042), "", none},
    {"append, nothing to a long text", upper, "", "te", F(QUVEX_002005), F(QUVEX_002030), "te", F(strcat)},
    {"character_to_lower", upper, "", "C", F(QUVEX_002026), none, "", none},
    {"character_to_upper", upper, "", "l", F(QUVEX_002027), none, "", none},
    {"to_lower", upper, "", "t", F(QUVEX_002015), F(QUVEX_002040), "", none},
    {"to_upper", upper, "", "t", F(QUVEX_002025), F(QUVEX_002052), "", none},
    {"compare", upper, "", "to", F(QUVEX_002008), F(QUVEX_002033), "to", F(strcmp)},
    {"compare_counted", upper, "", "tos", F(QUVEX_002016), F(QUVEX_002043), "tos", F(strncmp)},
    {"compare_folded", upper, "", "to", F(QUVEX_002012), F(QUVEX_002037), "to", F(strcasecmp)},
    {"compare_folded, other case", upper, "", "tf", F(QUVEX_002012), F(QUVEX_002037), "tf", F(strcasecmp)},
    {"compare_folded_counted", upper, "", "tos", F(QUVEX_002019), F(QUVEX_002046), "tos", F(strncasecmp)},
    {"find_character", upper, "", "t!", F(QUVEX_002007), F(QUVEX_002032), "t!", F(strchr)},
    {"find", upper, "!?", "tn", F(QUVEX_002022), F(QUVEX_002049), "tn", F(strstr)},
    {"find, worst case", u"A", "AAAAAAAB", "tn", F(QUVEX_002022), F(QUVEX_002049), "tn", F(strstr)},
    {"find_folded", upper, "!?", "tn", F(QUVEX_002013), F(QUVEX_002038), "tn", F(strcasestr)},
    {"next_token", upper, ",; ", "tkn", F(QUVEX_002023), F(QUVEX_002050), "tnk", F(strtok_r)},
    {"next_token, set of one", upper, ",", "tkn", F(QUVEX_002023), F(QUVEX_002050), "tnk", F(strtok_r)},
    {"next_token, set of eight", upper, " \t\r\n,;:=", "tkn", F(QUVEX_002023), F(QUVEX_002050), "tnk", F(strtok_r)},
    {"split", words, " ", "tnd", F(QUVEX_002021), F(QUVEX_002048), "", none},
    {"trim", blanks, " \t", "tn", F(QUVEX_002024), F(QUVEX_002051), "", none},
    {"replace", upper, "A", "tnrd", F(QUVEX_002020), F(QUVEX_002047), "", none},
    {"replace, size query", upper, "A", "tnr0", F(QUVEX_002020), F(QUVEX_002047), "", none},
    {"to_text", upper, "", "vdx", F(QUVEX_002003), F(QUVEX_002004), "vdx", F(itoa)},
    {"to_integer", numerals, "", "t", F(QUVEX_002000), F(QUVEX_002053), "t", F(atoi)},
    {"escape", upper, "", "tdE", none, F(QUVEX_002029), "", none},
    {"escape, four digits", u"\x1234", "", "tdE", none, F(QUVEX_002029), "", none},
    {"widen", upper, "", "tds", F(QUVEX_002001), none, "", none},
    {"widen_units", upper, "", "tdc", F(QUVEX_002002), none, "", none},
    {"copy_units", upper, "", "tdc", none, F(QUVEX_002028), "dtb", F(memcpy)},
    {"copy_units, not aligned alike", upper, "", "tDc", none, F(QUVEX_002028), "Dtb", F(memcpy)},
};

// What the cases read and write, for both widths: an escape is nine units long.
alignas(8) uint8_t text[2 * longest + 2], twin[2 * longest + 2], needle[32], replacement[8];
alignas(8) uint8_t destination[9 * longest + 16];
uint32_t cursor;
volatile uint32_t result;

template <class Unit>
void fill(uint8_t* buffer, const char16_t* pattern, uint32_t length, uint32_t last, uint32_t change) {
  Unit* unit = reinterpret_cast<Unit*>(buffer);
  for (uint32_t i = 0, k = 0; i < length; ++i, ++k) {
    if (!pattern[k]) k = 0;
    unit[i] = static_cast<Unit>(i + 1 < length ? pattern[k] ^ change : last);
  }
  unit[length] = 0;
}

template <class Unit>
void put(uint8_t* buffer, const char* string) {
  Unit* unit = reinterpret_cast<Unit*>(buffer);
  while ((*unit++ = static_cast<uint8_t>(*string++))) {
  }
}

uint32_t address(const void* pointer) { return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(pointer)); }

uint32_t repunit(uint32_t length) { return length ? repunit(length - 1) * 10 + 1 : 0; }

template <class Unit>
uint32_t argument(char kind, uint32_t length) {
  const struct {
    char kind;
    uint32_t value;
  } arguments[] = {
      {'t', address(text)},
      {'o', address(twin)},
      {'f', address(twin)},
      {'n', address(needle)},
      {'r', address(replacement)},
      {'d', address(destination)},
      {'e', address(destination)},
      {'k', address(&cursor)},
      {'D', address(destination + sizeof(Unit))},
      {'c', length},
      {'b', 2 * length},
      {'s', length + 1},
      {'E', 9 * length + 1},
      {'v', repunit(length)},
      {'x', 10},
      {'!', '!'},
      {'C', 'M'},
      {'l', 'm'},
  };
  for (const auto& one : arguments) {
    if (one.kind == kind) return one.value;
  }
  return 0;
}

void print(const char* string) {
  while (*string) board_write(*string++);
}

void print(uint32_t number) {
  if (number >= 10) print(number / 10);
  board_write(static_cast<char>('0' + number % 10));
}

}  // namespace

extern "C" void measured(Operation* operation, const uint32_t* arguments);

// Not inlined, and the result stored after the call, so that the call returns here.
__attribute__((noinline)) void measured(Operation* operation, const uint32_t* arguments) {
  result = operation(arguments[0], arguments[1], arguments[2], arguments[3]);
}

namespace {

template <class Unit>
void run(const Case& row, const Function& function, const char* kinds, bool all) {
  if (!function.address) return;
  const bool of_digits = *kinds == 'v';
  for (const uint32_t* length = all ? lengths[of_digits] : two_lengths[of_digits]; *length; ++length) {
    fill<Unit>(text, row.text, *length, '!', 0);
    fill<Unit>(twin, row.text, *length, '?', kinds[1] == 'f' ? 'A' ^ 'a' : 0);
    put<Unit>(needle, row.needle);
    put<Unit>(replacement, "xyz");
    put<Unit>(destination, "");
    cursor = 0;
    uint32_t arguments[4] = {};
    for (uint32_t i = 0; kinds[i]; ++i) arguments[i] = argument<Unit>(kinds[i], *length);
    print(row.name);
    print(" | ");
    print(function.name);
    print(" | ");
    print(*length);
    print("\n");
    measured(reinterpret_cast<Operation*>(function.address), arguments);
  }
}

}  // namespace

int main(int argument_count, char** arguments) {
  bool all = true, ours = true, theirs = true;
  while (--argument_count > 0) {
    const char choice = *arguments[argument_count];
    if (choice == 's') all = false;
    if (choice == 'o') theirs = false;
    if (choice == 't') ours = false;
  }
  for (const Case& row : cases) {
    if (ours) run<quvex_narrow>(row, row.narrow, row.arguments, all);
    if (ours) run<quvex_wide>(row, row.wide, row.arguments, all);
    if (theirs) run<quvex_narrow>(row, row.library, row.library_arguments, all);
  }
  board_exit(0);
}
