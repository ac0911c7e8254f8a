/* Reads the JSON that the library writes. It is well formed, so that what is not is a fault and ends in an R error. */
#include <stdlib.h>
#include <string.h>

#include "glue.h"

typedef struct {
  const char* at;
} Reader;

static SEXP read_value(Reader* reader);

static void skip_space(Reader* reader) {
  while (*reader->at == ' ' || *reader->at == '\n' || *reader->at == '\t' || *reader->at == '\r') ++reader->at;
}

static void fail(void) { Rf_error("the library's answer cannot be read; please report it"); }

static void expect(Reader* reader, char wanted) {
  skip_space(reader);
  if (*reader->at != wanted) fail();
  ++reader->at;
}

/* Passes a character that may follow. */
static int passes(Reader* reader, char wanted) {
  skip_space(reader);
  if (*reader->at != wanted) return 0;
  ++reader->at;
  return 1;
}

static unsigned read_hex(const char* digits) {
  unsigned value = 0;
  for (int i = 0; i < 4; ++i) {
    const char c = digits[i];
    value *= 16;
    if (c >= '0' && c <= '9') {
      value += (unsigned)(c - '0');
    } else if (c >= 'a' && c <= 'f') {
      value += (unsigned)(c - 'a' + 10);
    } else if (c >= 'A' && c <= 'F') {
      value += (unsigned)(c - 'A' + 10);
    } else {
      fail();
    }
  }
  return value;
}

/* Writes a code point of the basic plane as UTF-8; the library writes the others as they are. */
static char* put_code(char* out, unsigned code) {
  if (code < 0x80) {
    *out++ = (char)code;
  } else if (code < 0x800) {
    *out++ = (char)(0xC0 | (code >> 6));
    *out++ = (char)(0x80 | (code & 0x3F));
  } else {
    *out++ = (char)(0xE0 | (code >> 12));
    *out++ = (char)(0x80 | ((code >> 6) & 0x3F));
    *out++ = (char)(0x80 | (code & 0x3F));
  }
  return out;
}

static char unescaped(char c) {
  switch (c) {
    case 'n': return '\n';
    case 't': return '\t';
    case 'r': return '\r';
    case 'b': return '\b';
    case 'f': return '\f';
    default: return c;
  }
}

/* A string that an opening quote has begun. No escape is shorter than what it stands for. */
static SEXP read_string(Reader* reader) {
  const char* end = reader->at;
  while (*end && *end != '"') end += *end == '\\' && end[1] ? 2 : 1;
  if (!*end) fail();
  char* text = R_alloc((size_t)(end - reader->at) + 1, 1);
  char* out = text;
  while (reader->at < end) {
    if (*reader->at != '\\') {
      *out++ = *reader->at++;
    } else if (reader->at[1] == 'u') {
      out = put_code(out, read_hex(reader->at + 2));
      reader->at += 6;
    } else {
      *out++ = unescaped(reader->at[1]);
      reader->at += 2;
    }
  }
  ++reader->at;
  return Rf_mkCharLenCE(text, (int)(out - text), CE_UTF8);
}

/* Counts the elements of an array or object whose bracket has been passed, so that its vector can be made at once. */
static R_xlen_t count_elements(const char* at) {
  R_xlen_t count = 0;
  int depth = 0, is_empty = 1;
  for (; *at; ++at) {
    if (*at == '"') {
      for (++at; *at && *at != '"'; ++at) {
        if (*at == '\\' && at[1]) ++at;
      }
      if (!*at) fail();
      is_empty = 0;
    } else if (*at == '[' || *at == '{') {
      ++depth;
      is_empty = 0;
    } else if (*at == ']' || *at == '}') {
      if (depth-- == 0) return is_empty ? 0 : count + 1;
    } else if (*at == ',' && depth == 0) {
      ++count;
    } else if (*at != ' ' && *at != '\n') {
      is_empty = 0;
    }
  }
  fail();
  return 0;
}

static SEXP read_object(Reader* reader) {
  const R_xlen_t count = count_elements(reader->at);
  SEXP list = PROTECT(Rf_allocVector(VECSXP, count));
  SEXP names = PROTECT(Rf_allocVector(STRSXP, count));
  for (R_xlen_t i = 0; i < count; ++i) {
    if (i) expect(reader, ',');
    expect(reader, '"');
    SET_STRING_ELT(names, i, read_string(reader));
    expect(reader, ':');
    SET_VECTOR_ELT(list, i, read_value(reader));
  }
  expect(reader, '}');
  Rf_setAttrib(list, R_NamesSymbol, names);
  UNPROTECT(2);
  return list;
}

static int is_plain(SEXP value, SEXPTYPE type) {
  if (Rf_xlength(value) != 1) return 0;
  return (SEXPTYPE)TYPEOF(value) == type || (TYPEOF(value) == LGLSXP && LOGICAL(value)[0] == NA_LOGICAL);
}

/* The type of the vector that a list of single values makes, or that of lists. */
static SEXPTYPE common_type(SEXP list) {
  SEXPTYPE types[] = {LGLSXP, REALSXP, STRSXP};
  const R_xlen_t count = Rf_xlength(list);
  if (count == 0) return VECSXP;
  for (int t = 0; t < 3; ++t) {
    R_xlen_t i = 0;
    while (i < count && is_plain(VECTOR_ELT(list, i), types[t])) ++i;
    if (i == count) return types[t];
  }
  return VECSXP;
}

static SEXP read_list(Reader* reader, R_xlen_t count) {
  SEXP list = PROTECT(Rf_allocVector(VECSXP, count));
  for (R_xlen_t i = 0; i < count; ++i) {
    if (i) expect(reader, ',');
    SET_VECTOR_ELT(list, i, read_value(reader));
  }
  expect(reader, ']');
  const SEXPTYPE type = common_type(list);
  if (type == VECSXP) {
    UNPROTECT(1);
    return list;
  }
  SEXP vector = PROTECT(Rf_allocVector(type, count));
  for (R_xlen_t i = 0; i < count; ++i) {
    SEXP value = VECTOR_ELT(list, i);
    if (type == LGLSXP) LOGICAL(vector)[i] = LOGICAL(value)[0];
    if (type == REALSXP) REAL(vector)[i] = TYPEOF(value) == REALSXP ? REAL(value)[0] : NA_REAL;
    if (type == STRSXP) SET_STRING_ELT(vector, i, TYPEOF(value) == STRSXP ? STRING_ELT(value, 0) : NA_STRING);
  }
  UNPROTECT(2);
  return vector;
}

static double read_number(Reader* reader) {
  char* end = NULL;
  const double number = strtod(reader->at, &end);
  if (end == reader->at) fail();
  reader->at = end;
  return number;
}

/* Numbers and gaps alone, as the points of a chart are, go straight into a vector. */
static SEXP read_array(Reader* reader) {
  const R_xlen_t count = count_elements(reader->at);
  const char* start = reader->at;
  skip_space(reader);
  if (count == 0 || !(*reader->at == '-' || (*reader->at >= '0' && *reader->at <= '9'))) {
    return read_list(reader, count);
  }
  SEXP vector = PROTECT(Rf_allocVector(REALSXP, count));
  for (R_xlen_t i = 0; i < count; ++i) {
    if (i) expect(reader, ',');
    skip_space(reader);
    const int is_number = *reader->at == '-' || (*reader->at >= '0' && *reader->at <= '9');
    if (!is_number && strncmp(reader->at, "null", 4) != 0) {
      UNPROTECT(1);
      reader->at = start;
      return read_list(reader, count);
    }
    if (!is_number) reader->at += 4;
    REAL(vector)[i] = is_number ? read_number(reader) : NA_REAL;
  }
  expect(reader, ']');
  UNPROTECT(1);
  return vector;
}

static SEXP read_word(Reader* reader, const char* word, int value) {
  const size_t length = strlen(word);
  if (strncmp(reader->at, word, length) != 0) fail();
  reader->at += length;
  return Rf_ScalarLogical(value);
}

static SEXP read_value(Reader* reader) {
  R_CheckStack();
  if (passes(reader, '{')) return read_object(reader);
  if (passes(reader, '[')) return read_array(reader);
  if (passes(reader, '"')) {
    SEXP text = PROTECT(read_string(reader));
    SEXP value = Rf_ScalarString(text);
    UNPROTECT(1);
    return value;
  }
  switch (*reader->at) {
    case 't': return read_word(reader, "true", 1);
    case 'f': return read_word(reader, "false", 0);
    case 'n': return read_word(reader, "null", NA_LOGICAL);
    default: return Rf_ScalarReal(read_number(reader));
  }
}

SEXP kelr_read_json(const char* text) {
  const void* memory = vmaxget();
  Reader reader = {text};
  SEXP value = PROTECT(read_value(&reader));
  vmaxset(memory);
  UNPROTECT(1);
  return value;
}
