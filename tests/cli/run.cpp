#include "run.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <sstream>

namespace {

std::string ContentOf(std::FILE* file) {
  std::string content;
  std::rewind(file);
  for (int letter = std::fgetc(file); letter != EOF; letter = std::fgetc(file)) {
    content += static_cast<char>(letter);
  }
  return content;
}

}  // namespace

Outcome RunProgram(const std::vector<std::string>& arguments) {
  std::vector<std::string> texts{KELPOWER_PROGRAM};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  for (std::string& text : texts) argv.push_back(text.data());
  argv.push_back(nullptr);

  std::FILE* out = std::tmpfile();
  std::FILE* err = std::tmpfile();
  const pid_t child = fork();
  if (child == 0) {
    dup2(fileno(out), STDOUT_FILENO);
    dup2(fileno(err), STDERR_FILENO);
    execv(argv[0], argv.data());
    _exit(127);
  }
  int state = 0;
  waitpid(child, &state, 0);
  Outcome run{WIFEXITED(state) ? WEXITSTATUS(state) : -1, ContentOf(out), ContentOf(err)};
  std::fclose(out);
  std::fclose(err);
  return run;
}

std::vector<std::string> Words(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}
