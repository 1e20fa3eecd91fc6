/* Prints every record of a file (or of standard input) as text. C99. */
#include <navframe/navframe.h>
#include <stdio.h>

int main(int argc, char** argv) {
  static uint8_t chunk[4096];
  static char text[65536];
  GnssMessage record;
  size_t length;
  FILE* const file = argc > 1 ? fopen(argv[1], "rb") : stdin;
  if (file == NULL) return perror(argv[1]), 1;
  while ((length = fread(chunk, 1, sizeof chunk, file)) > 0) {
    GNSSPutData(chunk, (uint32_t)length);
    while (GNSSGetMsg(&record, 0) == 0) {
      if (structDataToStr(&record, text, 0) == 0) printf("%u: %s\n", (unsigned)record.id, text);
      GNSSFreeMem(&record);
    }
  }
  return 0;
}
