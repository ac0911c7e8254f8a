/* Writes a request. Numbers have 17 digits, which read back to the same double. */
#include <stdio.h>
#include <string.h>

#include "glue.h"

typedef struct {
  char* text;
  size_t length;
  size_t capacity;
} Writer;

static void put(Writer* writer, const char* text, size_t length) {
  if (writer->length + length + 1 > writer->capacity) {
    const size_t capacity = 2 * (writer->capacity + length + 1);
    char* larger = R_alloc(capacity, 1);
    if (writer->length) memcpy(larger, writer->text, writer->length);
    writer->text = larger;
    writer->capacity = capacity;
  }
  memcpy(writer->text + writer->length, text, length);
  writer->length += length;
  writer->text[writer->length] = 0;
}

static void put_text(Writer* writer, const char* text) { put(writer, text, strlen(text)); }

static void put_string(Writer* writer, SEXP string) {
  const char* text = Rf_translateCharUTF8(string);
  put(writer, "\"", 1);
  for (; *text; ++text) {
    const unsigned char c = (unsigned char)*text;
    if (c == '"' || c == '\\') put(writer, "\\", 1);
    if (c < 0x20) {
      char escape[8];
      snprintf(escape, sizeof escape, "\\u%04x", c);
      put_text(writer, escape);
    } else {
      put(writer, text, 1);
    }
  }
  put(writer, "\"", 1);
}

static void put_number(Writer* writer, double number) {
  char digits[32];
  if (!R_FINITE(number)) {
    put_text(writer, "null");
    return;
  }
  snprintf(digits, sizeof digits, "%.17g", number);
  put_text(writer, digits);
}

static void put_flag(Writer* writer, int flag) {
  put_text(writer, flag == NA_LOGICAL ? "null" : flag ? "true" : "false");
}

static void put_value(Writer* writer, SEXP value);

static void put_element(Writer* writer, SEXP value, R_xlen_t i) {
  switch (TYPEOF(value)) {
    case LGLSXP: put_flag(writer, LOGICAL(value)[i]); break;
    case INTSXP: put_number(writer, INTEGER(value)[i] == NA_INTEGER ? NA_REAL : INTEGER(value)[i]); break;
    case REALSXP: put_number(writer, REAL(value)[i]); break;
    case STRSXP: put_string(writer, STRING_ELT(value, i)); break;
    case VECSXP: put_value(writer, VECTOR_ELT(value, i)); break;
    default: put_text(writer, "null");
  }
}

static void put_value(Writer* writer, SEXP value) {
  SEXP names = Rf_getAttrib(value, R_NamesSymbol);
  const int is_list = TYPEOF(value) == VECSXP;
  const int is_object = is_list && !Rf_isNull(names);
  const R_xlen_t count = Rf_xlength(value);
  R_CheckStack();
  if (!is_list && count == 1) {
    put_element(writer, value, 0);
    return;
  }
  put(writer, is_object ? "{" : "[", 1);
  for (R_xlen_t i = 0; i < count; ++i) {
    if (i) put(writer, ",", 1);
    if (is_object) {
      put_string(writer, STRING_ELT(names, i));
      put(writer, ":", 1);
    }
    put_element(writer, value, i);
  }
  put(writer, is_object ? "}" : "]", 1);
}

const char* kelr_write_json(SEXP value) {
  Writer writer = {NULL, 0, 0};
  put_value(&writer, value);
  return writer.text;
}
