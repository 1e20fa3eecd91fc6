// What a caster answers to a request, of NTRIP 1 or 2.
#pragma once

#include <string>
#include <string_view>

namespace navframe::tool {

class CasterAnswer {
 public:
  enum class Kind {
    None,         // so far
    Stream,       // what follows are the bytes of a receiver
    SourceTable,  // the list of what the caster has
    Other         // no access, no such mountpoint, a web page
  };

  // A line of the head, as HTTP has it and with its line end. Another head takes the place of the
  // one before it.
  void TakeHeadLine(std::string_view line);
  // What is no head to HTTP. NTRIP 1 has a first line of its own in it, which is taken off.
  void TakeBody(std::string_view bytes);

  Kind What() const { return kind_; }
  // Why it is no stream.
  std::string Why() const;
  // Whether a password is wanted in the way of "Digest".
  bool WantsDigest() const { return status_ == "401" && wantsDigest_; }

  // What came and was not taken out.
  std::string& Body() { return body_; }

 private:
  void TakeFirstLine();

  Kind kind_ = Kind::None;
  std::string status_;  // "404"; empty before an answer, and of NTRIP 1
  std::string reason_;  // what stands behind it
  std::string type_;    // of the content, in small letters
  bool wantsDigest_ = false;
  bool isFirstLine_ = true;
  std::string body_;
};

}  // namespace navframe::tool
