#include "commands/doctor.h"

#include <stdexcept>
#include <vector>

#include "commands/doctor_page.h"
#include "commands/messages.h"
#include "commands/rounds.h"
#include "commands/run_command.h"
#include "fault.h"
#include "interrupt.h"
#include "outputs/output_file.h"
#include "sources/address.h"
#include "sources/file.h"
#include "sources/folders.h"

namespace navframe::tool {
namespace {

class Run {
 public:
  explicit Run(const DoctorOptions& options)
      : options_(options),
        progress_(SizeOfFiles({options.source})),
        messages_(progress_, false),
        output_(options.target),
        rounds_(options.source, progress_, messages_) {}

  ExitStatus Tell() {
    rounds_.Examine();
    const analysis::Diagnosis& diagnosis = rounds_.Found();
    const bool isRecognised = diagnosis.isRecognised;
    bool isGood = rounds_.IsGood();
    repaired_ = rounds_.TakenOut();
    try {
      if (!options_.repaired.empty() && isGood && isRecognised) Repair();
    } catch (const std::runtime_error& fault) {  // of the copy: what was found is told
      messages_.Add(fault.what());
      isGood = false;
    }
    const std::string name = options_.source == "-" ? "standard input" : ShownName(options_.source);
    if (options_.json) {
      output_.Buffer() = DoctorJson(name, diagnosis, repaired_);
    } else {
      AppendDoctorPage(name, diagnosis, repaired_, output_.Buffer());
    }
    progress_.Hide();
    output_.Close();
    if (!isGood) return Failure;
    if (isRecognised) return diagnosis.IsHealthy() ? Success : Failure;
    messages_.Add(diagnosis.bytes == 0 ? name + " is empty" : "nothing was recognised in " + name);
    return NothingRecognised;
  }

 private:
  void Repair() {
    OutputFile file(options_.repaired);
    Source& source = rounds_.Open();
    std::vector<std::uint8_t> chunk(std::size_t{1} << 16);
    for (;;) {
      const Reading reading = source.Read(chunk.data(), chunk.size());
      if (IsInterrupted()) throw Fault("interrupted: " + options_.repaired + " was not written");
      if (reading.state == Reading::State::End) break;
      file.Buffer().append(reinterpret_cast<const char*>(chunk.data()), reading.length);
      file.WriteWhenLarge();
    }
    file.Close();
    repaired_.name = options_.repaired;
  }

  const DoctorOptions& options_;
  Progress progress_;
  Messages messages_;
  OutputFile output_;
  Rounds rounds_;
  Repaired repaired_;
};

}  // namespace

ExitStatus Doctor(const DoctorOptions& options) {
  NoteInterrupts();
  return RunCommand([&options] {
    if (!options.repaired.empty() && options.target == options.repaired) {
      throw UsageFault(options.repaired + " cannot be both the page and the repaired recording");
    }
    for (const std::string& output : {options.target, options.repaired}) {
      CheckOutput({options.source}, output);
    }
    return Run(options).Tell();
  });
}

}  // namespace navframe::tool
