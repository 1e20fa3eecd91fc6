#include "commands/info_json.h"

#include "commands/json_writer.h"

namespace navframe::tool {

std::string InfoJson(const std::vector<NamedContents>& files, const analysis::Contents& total) {
  JsonWriter json;
  TellRecordings(files, total, json);
  return json.Done() + "\n";
}

}  // namespace navframe::tool
