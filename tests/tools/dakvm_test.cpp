// The built command from end to end.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

namespace fs = std::filesystem;

struct Outcome {
  int code;
  std::string out, err;
};

class Command : public testing::Test {
 protected:
  Command() {
    std::string pattern = testing::TempDir() + "dakvm_XXXXXX";
    folder_ = mkdtemp(pattern.data());
  }
  ~Command() override { fs::remove_all(folder_); }

  void write(const std::string& name, const std::string& content) const {
    std::ofstream(folder_ / name, std::ios::binary) << content;
  }
  std::string read(const std::string& name) const {
    std::ostringstream content;
    content << std::ifstream(folder_ / name, std::ios::binary).rdbuf();
    return content.str();
  }
  // Runs in the test's folder; `arguments` go through the shell.
  Outcome run(const std::string& arguments, const std::string& input = "") const {
    write("stdin", input);
    const std::string line = "cd '" + folder_.string() + "' && { '" DAKVM_COMMAND "' " + arguments +
                             "; } <stdin >stdout 2>stderr";
    const int status = std::system(line.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read("stdout"), read("stderr")};
  }
  void expect_failure(int code, const std::string& message, const std::string& arguments,
                      const std::string& input = "") const {
    const Outcome o = run(arguments, input);
    EXPECT_EQ(o.code, code) << arguments;
    EXPECT_NE(o.err.find(message), std::string::npos) << arguments << "\n" << o.err;
  }
  size_t files() const {
    return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
  }

  fs::path folder_;
};

TEST_F(Command, Text) {
  EXPECT_EQ(run("eval sqrt", "# roots\n4\r\n\n +0x1p4 \n-0").out, "2\n4\n-0\n");
  EXPECT_EQ(run("eval Div - --hex", "3 2\n1\t-4\n").out, "0x1.8p+0\n-0x1p-2\n");
  EXPECT_EQ(run("eval Sqrt --type 32f --bits", "2\n").out, "0x3fb504f3\n");
  EXPECT_EQ(run("eval DAKSINV_32f_a11", "3\n").out, "0.33333334\n");
}

TEST_F(Command, CsvKeepsItsLines) {
  write("in.csv", "\xef\xbb\xbft,\"p \"\"q\"\"\",n\r\n\"a,\nb\", 4 ,2\r\nc,\"9\",3");
  EXPECT_EQ(
      run("eval Sqrt in.csv --csv --column 'p \"q\"'").out,
      "\xef\xbb\xbft,\"p \"\"q\"\"\",n,\"Sqrt(p \"\"q\"\")\"\r\n\"a,\nb\", 4 ,2,2\r\nc,\"9\",3,3");
  EXPECT_EQ(run("eval Div --csv --column x,2 --delimiter ';' --name q", "x;y\n6;4\n").out,
            "x;y;q\n6;4;1.5\n");
  EXPECT_EQ(run("eval Inv --csv --no-header --delimiter tab --column 2", "a\t4\n").out,
            "a\t4\t0.25\n");
}

TEST_F(Command, RawKeepsNanPayloads) {
  const uint64_t in[] = {0x7ff0000000000001, 0x3ff0000000000000, 0x4008000000000000,
                         0x4000000000000000};
  const uint64_t quotients[] = {0x7ff8000000000001, 0x3ff8000000000000};
  const auto bytes = [](const auto& array) {
    return std::string(reinterpret_cast<const char*>(array), sizeof array);
  };
  // A quiet NaN would raise nothing: the signalling one must have reached the library as it is.
  const Outcome o = run("eval Div --raw --summary json", bytes(in));
  EXPECT_EQ(o.out, bytes(quotients));
  EXPECT_NE(o.err.find("\"flags\":[\"invalid\"]"), std::string::npos) << o.err;
  expect_failure(7, "31 bytes", "eval Div --raw", bytes(in).substr(1));
}

TEST_F(Command, SummaryCountsExceptionalElementsAcrossBlocks) {
  std::string input;
  for (int i = 0; i < 10000; ++i)
    input += i == 4095 || i == 5000 ? "800\n" : i == 4096 ? "-800\n" : "0\n";
  const std::string json = run("eval Exp --summary json", input).err;
  EXPECT_EQ(json.substr(0, json.find(",\"elements_per_second")),
            "{\"function\":\"daksExp_64f_A53\",\"elements\":10000,\"statuses\":["
            "{\"status\":12,\"name\":\"overflow\",\"count\":2,\"first_index\":4095,"
            "\"first_input\":[\"800\"]},"
            "{\"status\":17,\"name\":\"underflow\",\"count\":1,\"first_index\":4096,"
            "\"first_input\":[\"-800\"]}],\"last_status\":12,"
            "\"flags\":[\"overflow\",\"underflow\",\"inexact\"],\"bad_cells\":0,"
            "\"first_bad_cell\":\"\"");

  const Outcome exact = run("eval Sqrt", "4\n");
  EXPECT_NE(exact.err.find("flags raised: none"), std::string::npos) << exact.err;
  EXPECT_EQ(run("eval Sqrt --summary none", "4\n").err, "");
}

TEST_F(Command, SeveralColumns) {
  const std::string csv = "a,b,c\n1,x,4\n-2,,8\n";
  EXPECT_EQ(run("eval Inv --csv --column a,c", csv).out,
            "a,b,c,Inv(a),Inv(c)\n1,x,4,1,0.25\n-2,,8,-0.5,0.125\n");
  write("in.csv", csv);
  EXPECT_EQ(run("eval Inv --csv --name p,q --column c --column 1 in.csv").out,
            "a,b,c,p,q\n1,x,4,0.25,1\n-2,,8,0.125,-0.5\n");
  EXPECT_EQ(run("eval SinCos --csv --column u,v", "u,v\n0,-0\n").out,
            "u,v,SinCos(u).1,SinCos(u).2,SinCos(v).1,SinCos(v).2\n0,-0,0,1,-0,1\n");
  for (const char* pairs : {"--column a,c,c,a", "--column a,c --column c,a",
                            "--column a,3 "
                            "--column c --column a"})
    EXPECT_EQ(run(std::string("eval Div --csv ") + pairs, csv).out,
              "a,b,c,Div(a;c),Div(c;a)\n1,x,4,0.25,4\n-2,,8,-0.25,-4\n");
  EXPECT_EQ(run("eval Inv --csv --no-header --column 1,3", "1,x,4\n").out, "1,x,4,1,0.25\n");

  const std::string commas = "\"a,c\",a,c\n2,4,8\n";
  EXPECT_EQ(run("eval Inv --csv --column a,c --name 'r,s'", commas).out,
            "\"a,c\",a,c,\"r,s\"\n2,4,8,0.5\n");
  EXPECT_EQ(run("eval Inv --csv --column '\"a,c\",c' --name '\"r,s\",t'", commas).out,
            "\"a,c\",a,c,\"r,s\",t\n2,4,8,0.5,0.125\n");

  expect_failure(5, "there is no column 'd'\nThe columns are:", "eval Inv --csv --column a,d", csv);
  expect_failure(5, "two columns for each result", "eval Div --csv --column a,c,a", csv);
  expect_failure(5, "'c' is named twice", "eval Inv --csv --column c,a,3", csv);
  expect_failure(5, "'a,c' is named twice", "eval Div --csv --column a,c,c,a,a,c", csv);
  expect_failure(2, "2 result columns, and here 3 names",
                 "eval Inv --csv --column a,c --name x,y,z", csv);
}

TEST_F(Command, SummaryOfSeveralColumns) {
  const std::string csv = "a,b\n0,-801\n0,801\n800,-800\n";
  const std::string json = run("eval Exp --csv --column a,b --summary json", csv).err;
  const auto status = [](const char* value_and_name, int count, int row, const char* input) {
    return R"({"status":)" + std::string(value_and_name) + R"(","count":)" + std::to_string(count) +
           R"(,"first_index":)" + std::to_string(row) + R"(,"first_input":[")" + input + R"("]})";
  };
  const char* const overflow = R"(12,"name":"overflow)";
  const char* const underflow = R"(17,"name":"underflow)";
  EXPECT_EQ(json.substr(0, json.find(",\"bad_cells")),
            R"({"function":"daksExp_64f_A53","elements":6,"statuses":[)" +
                status(underflow, 2, 0, "-801") + "," + status(overflow, 2, 1, "801") +
                R"(],"last_status":17,"flags":["overflow","underflow","inexact"],"by_column":[)"
                R"({"columns":["a"],"elements":3,"statuses":[)" +
                status(overflow, 1, 2, "800") +
                R"(],"last_status":12,"flags":["overflow","inexact"]},)"
                R"({"columns":["b"],"elements":3,"statuses":[)" +
                status(underflow, 2, 0, "-801") + "," + status(overflow, 1, 1, "801") +
                R"(],"last_status":17,"flags":["overflow","underflow","inexact"]}])");

  const std::string text = run("eval Exp --csv --column a,b", csv).err;
  EXPECT_EQ(text.find("daksExp_64f_A53: 6 elements, "), 0u) << text;
  EXPECT_NE(text.find("\n  a: 3 elements\n    overflow (12): 1, first at index 2, input 800\n"),
            std::string::npos)
      << text;

  // A cell that two pairs take is one cell.
  const Outcome shared =
      run("eval Div --csv --column a,b,a,c --on-error nan", "a,b,c\n?,1,2\n1,2,4\n");
  EXPECT_EQ(shared.out, "a,b,c,Div(a;b),Div(a;c)\n?,1,2,nan,nan\n1,2,4,0.5,0.25\n");
  EXPECT_NE(shared.err.find("bad cells: 1,"), std::string::npos) << shared.err;
}

TEST_F(Command, BadCells) {
  const std::string csv = "a,b\n1,x\n2,\n3,4\n";
  expect_failure(1, "standard input:2: column 2 (b): 'x' is not a number",
                 "eval Inv --csv --column b", csv);
  EXPECT_EQ(run("eval Inv --csv --column b --on-error nan", csv).out,
            "a,b,Inv(b)\n1,x,nan\n2,,nan\n3,4,0.25\n");
  const Outcome skipped = run("eval Inv --csv --column b --on-error skip", csv);
  EXPECT_EQ(skipped.out, "a,b,Inv(b)\n3,4,0.25\n");
  EXPECT_NE(skipped.err.find("bad cells: 2"), std::string::npos) << skipped.err;
  expect_failure(1, "standard input:1: column 2: '\\x01'", "eval Div", "1 \x01\n");
}

TEST_F(Command, Columns) {
  expect_failure(5, "1 number on the line", "eval Div", "1\n");
  expect_failure(5, "2 numbers on the line", "eval Inv", "1 2\n");
  expect_failure(5, "standard input:3: 3 columns", "eval Div --csv --on-error nan",
                 "a,b\n1,2\n1,2,3\n");
  expect_failure(5, "  2  beta", "eval Inv --csv --column gamma", "alpha,beta\n1,2\n");
  expect_failure(5, "--column", "eval Inv --csv", "alpha,beta\n1,2\n");
  expect_failure(5, "more than one", "eval Inv --csv --column a", "a,a\n1,2\n");
  expect_failure(5, "two columns", "eval Div --csv --column a", "a,b\n1,2\n");
  expect_failure(5, "never closed", "eval Inv --csv --column a", "a,b\n1,\"2\n");
  expect_failure(5, "more than 1048576 bytes", "eval Inv", std::string(3 << 20, '1'));
}

TEST_F(Command, WrongUse) {
  expect_failure(2, "type 64f has A50, A53", "eval Exp --grade A24", "1\n");
  expect_failure(2, "is of type 32f", "eval daksExp_32f_A24 --type 64f", "1\n");
  expect_failure(2, "takes no --exponent", "eval Exp --exponent -2", "1\n");
  expect_failure(2, "--column", "eval Exp --column 2", "1\n");
  expect_failure(2, "--delimiter", "eval Exp --csv --delimiter ::", "1\n");
  expect_failure(2, "subcommand", "");
  expect_failure(3, "missing.txt", "eval Exp missing.txt");
  expect_failure(3, "directory", "eval Exp .");
  expect_failure(4, "Sqrt", "eval Sqrr", "1\n");
  expect_failure(4, "daksExp_64f_A53", "eval daksExp_64f_A54", "1\n");
  for (const char* options : {"", " --csv", " --csv --no-header", " --raw"})
    expect_failure(6, "standard input", std::string("eval Exp") + options);
  expect_failure(6, "no elements", "eval Exp --csv", "header\n");
}

TEST_F(Command, OutputFileIsWholeOrAbsent) {
  EXPECT_EQ(run("eval Inv -o out", "4\n").code, 0);
  EXPECT_EQ(read("out"), "0.25\n");
  expect_failure(8, "--force", "eval Inv -o out", "2\n");
  EXPECT_EQ(read("out"), "0.25\n");

  const size_t before = files();
  expect_failure(1, "'x'", "eval Inv -o out --force", "2\nx\n");
  expect_failure(1, "'x'", "eval Inv -o fresh", "2\nx\n");
  EXPECT_EQ(read("out"), "0.25\n");
  EXPECT_EQ(files(), before) << "something was left behind";

  EXPECT_EQ(run("eval Inv out -o out --force", "").code, 0);
  EXPECT_EQ(read("out"), "4\n");
  expect_failure(8, "No space left", "eval Inv >/dev/full", "2\n");
  expect_failure(8, "No space left", "eval Inv -o /dev/full", "2\n");
  expect_failure(8, "No such file", "eval Inv -o no/such/folder", "2\n");
}

TEST_F(Command, SignalRemovesTheUnfinishedFile) {
  // The pipe stays open until the command has made its file and was stopped.
  ASSERT_EQ(std::system(("cd '" + folder_.string() +
                         "' && mkfifo pipe && { '" DAKVM_COMMAND
                         "' eval Inv pipe -o out & } && exec 3>pipe && "
                         "while ! ls out.* >/dev/null 2>&1; do sleep 0.05; done && "
                         "kill -TERM $! && ! wait $!")
                            .c_str()),
            0);
  EXPECT_EQ(files(), 1u);  // the pipe
}

// On a terminal, where a progress line is drawn once a second has gone by.
TEST_F(Command, QuietOnATerminal) {
  if (std::system("script -qec true /dev/null >/dev/null 2>&1") != 0)
    GTEST_SKIP() << "no pseudo-terminals here (a chroot without /dev/pts?)";
  const auto on_terminal = [&](const std::string& options) {
    write("feed", "yes 4 | head -4096\nsleep 1.1\nyes 4 | head -4096\n");
    const std::string line = "cd '" + folder_.string() +
                             "' && script -qec \"sh feed | '" DAKVM_COMMAND "' eval Sqrt -o out " +
                             options + "\" /dev/null >terminal";
    EXPECT_EQ(std::system(line.c_str()), 0);
    return read("terminal");
  };
  const std::string loud = on_terminal("");
  EXPECT_NE(loud.find("8192 elements\x1b"), std::string::npos) << loud;
  EXPECT_EQ(on_terminal("--force --quiet"), "");
  EXPECT_EQ(read("out").size(), 2u * 8192);
}

TEST_F(Command, Quiet) {
  EXPECT_EQ(run("eval Exp -q", "800\n").err, "");
  expect_failure(1, "'x' is not a number", "eval Exp -q", "x\n");
  expect_failure(6, "no elements", "eval Exp -q", "");
  expect_failure(2, "--summary", "eval Exp -q --summary json", "1\n");
}

TEST_F(Command, List) {
  const Outcome text = run("list");
  EXPECT_NE(text.out.find("sqrt(x)"), std::string::npos);
  EXPECT_NE(run("list --json")
                .out.find("{\"name\":\"daksDiv_32f_A11\",\"family\":\"Div\",\"type\":"
                          "\"32f\",\"grade\":\"A11\",\"inputs\":2,\"outputs\":1"),
            std::string::npos);
  EXPECT_EQ(run("version").out.find("libdakvmpx.so v"), 0u);
}

}  // namespace
