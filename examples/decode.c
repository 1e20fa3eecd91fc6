/* Prints every record of a file (or of standard input) as a line of JSON. C99. */
#include <navframe/stream.h>
#include <stdio.h>

static void PrintRecords(NavframeStream* stream) {
  static char json[262144];
  NavframeItem item = {.size = sizeof item};
  while (navframe_next(stream, &item) == NavframeItemReady) {
    navframe_json(item.kind, item.record, json, sizeof json);
    printf("{\"kind\":\"%s\",\"record\":%s}\n", item.kind->name, json);
  }
}

int main(int argc, char** argv) {
  static uint8_t chunk[4096];
  NavframeStream* stream;
  size_t length, done;
  FILE* const file = argc > 1 ? fopen(argv[1], "rb") : stdin;
  if (file == NULL) return perror(argv[1]), 1;
  if (navframe_open(NULL, &stream) != NavframeOk) return 1;
  while ((length = fread(chunk, 1, sizeof chunk, file)) > 0) {
    for (done = 0; done < length; PrintRecords(stream)) {
      done += navframe_put(stream, chunk + done, length - done);
    }
  }
  navframe_flush(stream);
  PrintRecords(stream);
  return navframe_close(stream), 0;
}
