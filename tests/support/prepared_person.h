// A person whose answers a test lays down beforehand and who remembers what he was told and asked.
// A question without an answer waiting fails the test.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "model/person.h"

namespace varnstride {

class PreparedPerson : public SilentPerson {
 public:
    using Answer = std::function<void(Dialog&)>;

    // The answer to the next dialog of the template, behind those that wait already.
    void Expect(int templateId, Answer answer) { answers_[templateId].push_back(answer); }
    // The file that the next chooser gives; nothing for a cancelled one.
    void Pick(std::optional<std::string> path) { picks_.push_back(std::move(path)); }

    void Ask(Dialog& dialog) override;
    bool Confirm(const MessageBox& box) override;
    std::optional<std::string> ChooseFile(const FileQuestion& question) override;
    void Saved(const std::string& path, std::size_t) override { saved.push_back(path); }
    void Play(Sound sound) override { played.push_back(sound); }

    std::vector<Dialog> asked;  // as they were shown
    std::vector<std::string> boxes;
    std::vector<FileQuestion> choosers;
    std::vector<std::string> saved;
    std::vector<Sound> played;
    std::function<void()> whileBoxIsOpen;

    // The numbers of the dialogs shown, in order.
    std::vector<int> TemplatesAsked() const;
    // Whether every answer and file laid down has been used.
    bool IsDone() const;

 private:
    std::map<int, std::deque<Answer>> answers_;
    std::deque<std::optional<std::string>> picks_;
};

// Presses the controls one after the other; the last is the button that closes the dialog.
PreparedPerson::Answer Press(std::vector<int> controls);

// Types into the edit, then presses the button.
PreparedPerson::Answer Type(int edit, std::string text, int button);

}  // namespace varnstride
