#include "chapters.h"
#include "expect.h"

static int arrow_releases = 0;

static void release_array(struct ArrowArray* array) {
  ++arrow_releases;
  array->release = NULL;
}

static void release_schema(struct ArrowSchema* schema) {
  ++arrow_releases;
  schema->release = NULL;
}

static struct ArrowSchema schema_of(const char* format, const char* name) {
  struct ArrowSchema schema;
  memset(&schema, 0, sizeof schema);
  schema.format = format;
  schema.name = name;
  schema.release = release_schema;
  return schema;
}

static struct ArrowArray array_of(int64_t length, int64_t offset, const void** buffers, int64_t n_buffers) {
  struct ArrowArray array;
  memset(&array, 0, sizeof array);
  array.length = length;
  array.offset = offset;
  array.null_count = -1;
  array.buffers = buffers;
  array.n_buffers = n_buffers;
  array.release = release_array;
  return array;
}

static const int32_t arrow_offsets[] = {0, 3, 11, 19, 22};
static const char arrow_data[] = "abc0462578104625782xyz";
static const uint8_t arrow_validity[] = {0x0D};

static void expect_arrow_codes(const ravo_column* column, const uint16_t* expected) {
  uint16_t codes[64];
  ravo_answers answers = RAVO_ANSWERS_INIT;
  answers.codes = codes;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, column, 0, &answers, NULL, NULL, NULL) == RAVO_OK);
  EXPECT(memcmp(codes, expected, column->length * sizeof *codes) == 0);
}

static void arrow_texts_are_columns(void) {
  static const char* const formats[] = {"u", "z"};
  static const uint16_t expected[] = {RAVO_CODE_NULL, 104, 102};
  const void* buffers[3];
  size_t i;
  buffers[0] = arrow_validity;
  buffers[1] = arrow_offsets;
  buffers[2] = arrow_data;
  for (i = 0; i < 2; ++i) {
    const struct ArrowSchema schema = schema_of(formats[i], "");
    const struct ArrowArray array = array_of(3, 1, buffers, 3);
    ravo_column column = RAVO_COLUMN_INIT;
    EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_OK);
    EXPECT(column.layout == RAVO_LAYOUT_OFFSETS_32 && column.length == 3 && column.offset == 1);
    expect_arrow_codes(&column, expected);
  }
  EXPECT(arrow_releases == 0);
}

static void a_null_count_of_zero_makes_the_bitmap_void(void) {
  static const uint16_t expected[] = {102, 0, 104, 102};
  const struct ArrowSchema schema = schema_of("u", "");
  const void* buffers[3];
  struct ArrowArray array = array_of(4, 0, buffers, 3);
  ravo_column column = RAVO_COLUMN_INIT;
  buffers[0] = arrow_validity;
  buffers[1] = arrow_offsets;
  buffers[2] = arrow_data;
  array.null_count = 0;
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_OK);
  expect_arrow_codes(&column, expected);
}

static void arrow_views_are_columns(void) {
  static const char text[] = "   04625781   ";
  static const int32_t views[] = {14, 0x20202020, 0, 0, 1, '7', 0, 0};
  static const int64_t sizes[] = {14};
  static const uint16_t expected[] = {0, 103};
  const struct ArrowSchema schema = schema_of("vu", "");
  const void* buffers[4];
  struct ArrowArray array = array_of(2, 0, buffers, 4);
  ravo_column column = RAVO_COLUMN_INIT;
  buffers[0] = NULL;
  buffers[1] = views;
  buffers[2] = text;
  buffers[3] = sizes;
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_OK);
  expect_arrow_codes(&column, expected);
  array.n_buffers = 2;
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
}

static void arrow_dictionaries_are_columns(void) {
  static const uint16_t indices[] = {2, 0, 1, 1};
  static const uint16_t expected[] = {102, 0, 0};
  struct ArrowSchema schema = schema_of("S", "");
  struct ArrowSchema entries_schema = schema_of("u", "");
  const void* buffers[2];
  const void* entries_buffers[3];
  struct ArrowArray array = array_of(3, 1, buffers, 2);
  struct ArrowArray entries = array_of(3, 0, entries_buffers, 3);
  ravo_column column = RAVO_COLUMN_INIT;
  ravo_column dictionary = RAVO_COLUMN_INIT;
  buffers[0] = NULL;
  buffers[1] = indices;
  entries_buffers[0] = NULL;
  entries_buffers[1] = arrow_offsets;
  entries_buffers[2] = arrow_data;
  schema.dictionary = &entries_schema;
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, &dictionary, NULL) == RAVO_ARGUMENT);
  array.dictionary = &entries;
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(column.layout == 0);
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, &dictionary, NULL) == RAVO_OK);
  expect_arrow_codes(&column, expected);
  entries_schema.dictionary = &schema;
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, &dictionary, NULL) == RAVO_ARGUMENT);
}

static void formats_are_known_or_refused(void) {
  static const struct {
    const char* format;
    int32_t width;
    ravo_layout layout;
    int64_t buffers;
  } rows[] = {{"U", 0, RAVO_LAYOUT_OFFSETS_64, 3},
              {"Z", 0, RAVO_LAYOUT_OFFSETS_64, 3},
              {"vz", 0, RAVO_LAYOUT_VIEWS, 3},
              {"w:12", 12, RAVO_LAYOUT_FIXED, 2},
              {"", 0, 0, 3},
              {"uu", 0, 0, 3},
              {"i", 4, RAVO_LAYOUT_NUMBERS, 2},
              {"l", 8, RAVO_LAYOUT_NUMBERS, 2},
              {"tdD", 4, RAVO_LAYOUT_NUMBERS, 2},
              {"l", 0, 0, 3},
              {"L", 0, 0, 2},
              {"g", 0, 0, 2},
              {"w:", 0, 0, 2},
              {"w:0", 0, 0, 2},
              {"w:-4", 0, 0, 2},
              {"w:4x", 0, 0, 2},
              {"w:99999999999", 0, 0, 2},
              {"+l", 0, 0, 2},
              {"u", 0, 0, 2},
              {"u", 0, 0, 4},
              {"w:4", 0, 0, 3}};
  static const void* buffers[] = {NULL, NULL, NULL, NULL};
  size_t i;
  for (i = 0; i < sizeof rows / sizeof *rows; ++i) {
    const struct ArrowSchema schema = schema_of(rows[i].format, "");
    const struct ArrowArray array = array_of(0, 0, buffers, rows[i].buffers);
    ravo_column column = RAVO_COLUMN_INIT;
    const ravo_status status = ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL);
    EXPECT(status == (rows[i].layout == 0 ? RAVO_ARGUMENT : RAVO_OK));
    EXPECT(column.layout == rows[i].layout && column.width == rows[i].width);
  }
}

static void what_is_no_array_is_refused(void) {
  static const void* buffers[] = {NULL, NULL, NULL};
  struct ArrowSchema schema = schema_of("u", "");
  struct ArrowArray array = array_of(0, 0, buffers, 3);
  ravo_column column = RAVO_COLUMN_INIT;
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_column_of_arrow(NULL, &array, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_column_of_arrow(&schema, NULL, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
  array.length = -1;
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
  array = array_of(0, -1, buffers, 3);
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
  array = array_of(0, 0, NULL, 3);
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
  array = array_of(0, 0, buffers, 3);
  array.release = NULL;
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
  array.release = release_array;
  schema.release = NULL;
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
  schema = schema_of(NULL, "");
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
}

/* A column of another implementation: the buffers of an array, those of its dictionary, and the codes
 * expected. */
struct arrow_sample {
  const char* format;
  int64_t length;
  const uint16_t* codes;
  int64_t n_buffers;
  const void* buffers[5];
  const char* dictionary_format;
  int64_t dictionary_length;
  int64_t dictionary_n_buffers;
  const void* dictionary_buffers[5];
};

#include "arrow_columns.inc"

static void expect_sample(const struct arrow_sample* sample, int64_t offset) {
  struct arrow_sample copy = *sample;
  struct ArrowSchema schema = schema_of(sample->format, "");
  struct ArrowSchema entries_schema = schema_of(sample->dictionary_format, "");
  struct ArrowArray array = array_of(sample->length - offset, offset, copy.buffers, sample->n_buffers);
  struct ArrowArray entries =
      array_of(sample->dictionary_length, 0, copy.dictionary_buffers, sample->dictionary_n_buffers);
  ravo_column column = RAVO_COLUMN_INIT;
  ravo_column dictionary = RAVO_COLUMN_INIT;
  if (sample->dictionary_format != NULL) {
    schema.dictionary = &entries_schema;
    array.dictionary = &entries;
  }
  EXPECT(ravo_column_of_arrow(&schema, &array, NULL, 0, &column, &dictionary, NULL) == RAVO_OK);
  expect_arrow_codes(&column, sample->codes + offset);
}

static void columns_of_another_implementation_have_codes(void) {
  size_t i;
  int64_t offset;
  for (i = 0; i < sizeof ARROW_SAMPLES / sizeof *ARROW_SAMPLES; ++i) {
    for (offset = 0; offset < ARROW_SAMPLES[i].length; ++offset) expect_sample(&ARROW_SAMPLES[i], offset);
  }
}

/* A record batch of two columns, of which the second one has the texts. */
struct arrow_batch {
  const void* none[3];
  const void* texts[3];
  struct ArrowSchema schemas[2];
  struct ArrowArray arrays[2];
  struct ArrowSchema* schema_children[2];
  struct ArrowArray* array_children[2];
  struct ArrowSchema schema;
  struct ArrowArray array;
};

static void fill_batch(struct arrow_batch* batch) {
  memset(batch, 0, sizeof *batch);
  batch->texts[1] = arrow_offsets;
  batch->texts[2] = arrow_data;
  batch->schemas[0] = schema_of("g", "id");
  batch->schemas[1] = schema_of("u", "i\xC4\x8Do");
  batch->arrays[0] = array_of(3, 0, batch->none, 2);
  batch->arrays[1] = array_of(3, 1, batch->texts, 3);
  batch->schema_children[0] = &batch->schemas[0];
  batch->schema_children[1] = &batch->schemas[1];
  batch->array_children[0] = &batch->arrays[0];
  batch->array_children[1] = &batch->arrays[1];
  batch->schema = schema_of("+s", "");
  batch->schema.n_children = 2;
  batch->schema.children = batch->schema_children;
  batch->array = array_of(2, 1, batch->none, 1);
  batch->array.n_children = 2;
  batch->array.children = batch->array_children;
}

static void batches_have_columns_by_name(void) {
  static const uint16_t expected[] = {104, 102};
  struct arrow_batch batch;
  ravo_column column = RAVO_COLUMN_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  fill_batch(&batch);
  EXPECT(ravo_column_of_arrow(&batch.schema, &batch.array, "i\xC4\x8Do", RAVO_NUL_TERMINATED, &column, NULL,
                              NULL) == RAVO_OK);
  EXPECT(column.offset == 2 && column.length == 2);
  expect_arrow_codes(&column, expected);
  EXPECT(ravo_column_of_arrow(&batch.schema, &batch.array, "ico", 3, &column, NULL, &error) == RAVO_UNKNOWN);
  EXPECT(ravo_column_of_arrow(&batch.schema, &batch.array, "id", 2, &column, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_column_of_arrow(&batch.schema, &batch.array, "\xFF", 1, &column, NULL, NULL) == RAVO_UTF8);
  EXPECT(ravo_column_of_arrow(&batch.schema, &batch.array, NULL, 0, &column, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_column_of_arrow(&batch.schemas[1], &batch.arrays[1], "ico", 3, &column, NULL, NULL) ==
         RAVO_ARGUMENT);
}

static ravo_status column_of_batch(const struct arrow_batch* batch) {
  ravo_column column = RAVO_COLUMN_INIT;
  return ravo_column_of_arrow(&batch->schema, &batch->array, "i\xC4\x8Do", 4, &column, NULL, NULL);
}

static void batches_that_do_not_fit_are_refused(void) {
  struct arrow_batch batch;
  fill_batch(&batch);
  batch.array.length = 3;
  EXPECT(column_of_batch(&batch) == RAVO_ARGUMENT);
  fill_batch(&batch);
  batch.array.offset = 4;
  EXPECT(column_of_batch(&batch) == RAVO_ARGUMENT);
  fill_batch(&batch);
  batch.array.length = -1;
  EXPECT(column_of_batch(&batch) == RAVO_ARGUMENT);
  fill_batch(&batch);
  batch.array.n_children = 1;
  EXPECT(column_of_batch(&batch) == RAVO_ARGUMENT);
  fill_batch(&batch);
  batch.array.children = NULL;
  EXPECT(column_of_batch(&batch) == RAVO_ARGUMENT);
  fill_batch(&batch);
  batch.array_children[1] = NULL;
  EXPECT(column_of_batch(&batch) == RAVO_ARGUMENT);
  fill_batch(&batch);
  batch.none[0] = arrow_validity;
  EXPECT(column_of_batch(&batch) == RAVO_ARGUMENT);
  batch.array.null_count = 0;
  EXPECT(column_of_batch(&batch) == RAVO_OK);
}

/* A stream of so many batches, which fails or breaks where the test says. */
struct batch_source {
  struct arrow_batch batches[4];
  int count;
  int next;
  int schema_fails;
  int next_fails_at;
  int schemas;
  int arrays;
  int released;
};

static void release_from_source(struct ArrowArray* array) {
  --((struct batch_source*)array->private_data)->arrays;
  array->release = NULL;
}

static void release_schema_from_source(struct ArrowSchema* schema) {
  --((struct batch_source*)schema->private_data)->schemas;
  schema->release = NULL;
}

static int get_schema(struct ArrowArrayStream* stream, struct ArrowSchema* out) {
  struct batch_source* source = (struct batch_source*)stream->private_data;
  if (source->schema_fails != 0) {
    memset(out, 0xFF, sizeof *out);
    return source->schema_fails;
  }
  ++source->schemas;
  *out = source->batches[0].schema;
  out->release = release_schema_from_source;
  out->private_data = source;
  return 0;
}

static int get_next(struct ArrowArrayStream* stream, struct ArrowArray* out) {
  struct batch_source* source = (struct batch_source*)stream->private_data;
  if (source->next + 1 == source->next_fails_at) {
    memset(out, 0xFF, sizeof *out);
    return 5;
  }
  if (source->next == source->count) {
    out->release = NULL;
    return 0;
  }
  ++source->arrays;
  *out = source->batches[source->next++].array;
  out->release = release_from_source;
  out->private_data = source;
  return 0;
}

static const char* get_last_error(struct ArrowArrayStream* stream) {
  return ((struct batch_source*)stream->private_data)->schema_fails != 0 ? NULL : "the disk is gone\xFF";
}

static void release_stream(struct ArrowArrayStream* stream) {
  ++((struct batch_source*)stream->private_data)->released;
  stream->release = NULL;
}

static struct ArrowArrayStream open_source(struct batch_source* source, int count) {
  struct ArrowArrayStream stream;
  int i;
  memset(source, 0, sizeof *source);
  for (i = 0; i < 4; ++i) fill_batch(&source->batches[i]);
  source->count = count;
  stream.get_schema = get_schema;
  stream.get_next = get_next;
  stream.get_last_error = get_last_error;
  stream.release = release_stream;
  stream.private_data = source;
  return stream;
}

static void expect_released(const struct batch_source* source, const struct ArrowArrayStream* stream) {
  EXPECT(source->released == 1 && source->schemas == 0 && source->arrays == 0);
  EXPECT(stream->release == NULL);
}

struct batch_log {
  int calls;
  int last;
  uint64_t rows;
  size_t wrong;
};

static int32_t RAVO_CALL check_batch(void* context, const ravo_column* column, uint64_t first_row) {
  struct batch_log* log = (struct batch_log*)context;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  EXPECT(log->rows == first_row);
  EXPECT(ravo_check_column(RAVO_KIND_ICO, column, 0, &answers, NULL, NULL, NULL) == RAVO_OK);
  log->rows += column->length;
  log->wrong += answers.wrong;
  return ++log->calls == log->last ? 42 : 0;
}

static void streams_give_every_batch(void) {
  struct batch_source source;
  struct batch_log log = {0, 0, 0, 0};
  struct ArrowArrayStream stream = open_source(&source, 3);
  EXPECT(ravo_arrow_stream(&stream, "i\xC4\x8Do", 4, check_batch, &log, NULL) == RAVO_OK);
  EXPECT(log.calls == 3 && log.rows == 6 && log.wrong == 6);
  expect_released(&source, &stream);
  stream = open_source(&source, 0);
  EXPECT(ravo_arrow_stream(&stream, "i\xC4\x8Do", 4, check_batch, &log, NULL) == RAVO_OK);
  EXPECT(log.calls == 3);
  expect_released(&source, &stream);
}

static void streams_are_released_on_failure_too(void) {
  struct batch_source source;
  struct batch_log log = {0, 2, 0, 0};
  ravo_error error = RAVO_ERROR_INIT;
  struct ArrowArrayStream stream = open_source(&source, 3);
  EXPECT(ravo_arrow_stream(&stream, "i\xC4\x8Do", 4, check_batch, &log, &error) == RAVO_STOPPED);
  EXPECT(error.code == 42 && log.calls == 2);
  expect_released(&source, &stream);
  stream = open_source(&source, 3);
  EXPECT(ravo_arrow_stream(&stream, "nothing", 7, check_batch, &log, &error) == RAVO_UNKNOWN);
  expect_released(&source, &stream);
  stream = open_source(&source, 3);
  EXPECT(ravo_arrow_stream(&stream, "\xFF", 1, check_batch, &log, &error) == RAVO_UTF8);
  expect_released(&source, &stream);
  stream = open_source(&source, 3);
  EXPECT(ravo_arrow_stream(&stream, NULL, 0, NULL, &log, &error) == RAVO_ARGUMENT);
  expect_released(&source, &stream);
  EXPECT(ravo_arrow_stream(&stream, NULL, 0, check_batch, &log, &error) == RAVO_ARGUMENT);
  EXPECT(ravo_arrow_stream(NULL, NULL, 0, check_batch, &log, &error) == RAVO_ARGUMENT);
  EXPECT(source.released == 1);
}

static void failures_of_streams_keep_number_and_words(void) {
  struct batch_source source;
  struct batch_log log = {0, 0, 0, 0};
  ravo_error error = RAVO_ERROR_INIT;
  struct ArrowArrayStream stream = open_source(&source, 3);
  source.next_fails_at = 2;
  EXPECT(ravo_arrow_stream(&stream, "i\xC4\x8Do", 4, check_batch, &log, &error) == RAVO_STOPPED);
  EXPECT(error.code == 5 && log.calls == 1);
  EXPECT_TEXT(error.message, "the disk is gone");
  expect_released(&source, &stream);
  stream = open_source(&source, 3);
  source.schema_fails = 12;
  EXPECT(ravo_arrow_stream(&stream, "i\xC4\x8Do", 4, check_batch, &log, &error) == RAVO_STOPPED);
  EXPECT(error.code == 12);
  EXPECT_TEXT(error.message, "the stream failed");
  expect_released(&source, &stream);
}

void test_columns_arrow(void) {
  arrow_texts_are_columns();
  a_null_count_of_zero_makes_the_bitmap_void();
  arrow_views_are_columns();
  arrow_dictionaries_are_columns();
  formats_are_known_or_refused();
  what_is_no_array_is_refused();
  columns_of_another_implementation_have_codes();
  batches_have_columns_by_name();
  batches_that_do_not_fit_are_refused();
  streams_give_every_batch();
  streams_are_released_on_failure_too();
  failures_of_streams_keep_number_and_words();
  EXPECT(arrow_releases == 0);
}
