// The whole tree at hub sizes of 4 to 1000 profiles, as 6.0.0 so that every page and the archive
// are in: a rebuild of a fresh tree and of an up-to-date one; a plain recursive copy of the
// finished tree, each file replaced atomically as the rebuild replaces it, which is as fast as a
// rebuild could ever be; the program's start with nothing to rebuild and with a fresh tree, each
// a whole process; and every page of the catalogue opened and saved. Prints one table and
// writes it as JSON, so that two commits can be compared (--compare OLD.json).
//
// Every measurement runs in a child process of its own, so that its peak resident memory is its
// own and the bench's set-up (building the trees) doesn't count. A row gives the median of its
// runs, the bytes the last run wrote (the system's count of write calls) and the peak memory.

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "pages/pages.h"
#include "shell/container.h"
#include "shell/controls.h"
#include "shell/scripted_host.h"
#include "shell/startup.h"
#include "support/temp_hub.h"

extern char** environ;

namespace {

using namespace qb;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr store::ProgramVersion kVersion{6, 0, 0};
constexpr const char* kVersionText = "6.0.0";

struct Row {
    std::string work;
    int profiles = 0;
    std::vector<double> ms;  // one time a run
    uint64_t written = 0;    // bytes the last run wrote
    long peakKib = 0;        // the measuring process's peak resident memory
    std::string error;       // why the work failed, if it did

    double Median() const {
        std::vector<double> sorted = ms;
        std::sort(sorted.begin(), sorted.end());
        if (sorted.empty()) return 0;
        const size_t middle = sorted.size() / 2;
        return sorted.size() % 2 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
    }
};

// The bytes this process has handed to write calls so far.
uint64_t BytesWritten() {
    std::ifstream io("/proc/self/io");
    std::string name;
    uint64_t value = 0;
    while (io >> name >> value) {
        if (name == "wchar:") return value;
    }
    return 0;
}

double MsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void WriteAll(int fd, const void* data, size_t size) {
    const char* at = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t n = ::write(fd, at, size);
        if (n <= 0) return;
        at += n;
        size -= static_cast<size_t>(n);
    }
}

bool ReadAll(int fd, void* data, size_t size) {
    char* at = static_cast<char*>(data);
    while (size > 0) {
        const ssize_t n = ::read(fd, at, size);
        if (n <= 0) return false;
        at += n;
        size -= static_cast<size_t>(n);
    }
    return true;
}

// Runs `runs` times, in a child process: `prepare` untimed, then `work` timed. The child sends
// its times and the last run's bytes back; its peak memory comes from the system.
void Measure(Row& row, int runs, const std::function<void()>& prepare,
             const std::function<void()>& work) {
    std::fflush(nullptr);
    int pipe[2];
    if (::pipe(pipe) != 0) {
        row.error = std::strerror(errno);
        return;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(pipe[0]);
        std::vector<double> times;
        uint64_t written = 0;
        std::string error;
        try {
            for (int run = 0; run < runs; ++run) {
                if (prepare) prepare();
                const uint64_t before = BytesWritten();
                const auto start = Clock::now();
                work();
                times.push_back(MsSince(start));
                written = BytesWritten() - before;
            }
        } catch (const std::exception& e) {
            error = e.what();
        }
        const size_t count = times.size();
        const size_t length = error.size();
        WriteAll(pipe[1], &count, sizeof count);
        WriteAll(pipe[1], times.data(), count * sizeof(double));
        WriteAll(pipe[1], &written, sizeof written);
        WriteAll(pipe[1], &length, sizeof length);
        WriteAll(pipe[1], error.data(), length);
        ::_exit(0);
    }
    ::close(pipe[1]);
    size_t count = 0;
    size_t length = 0;
    if (ReadAll(pipe[0], &count, sizeof count)) {
        row.ms.resize(count);
        ReadAll(pipe[0], row.ms.data(), count * sizeof(double));
        ReadAll(pipe[0], &row.written, sizeof row.written);
        if (ReadAll(pipe[0], &length, sizeof length)) {
            row.error.resize(length);
            ReadAll(pipe[0], row.error.data(), length);
        }
    }
    ::close(pipe[0]);
    int status = 0;
    rusage usage{};
    ::wait4(child, &status, 0, &usage);
    row.peakKib = usage.ru_maxrss;
    if (row.error.empty() && !(WIFEXITED(status) && WEXITSTATUS(status) == 0)) {
        row.error = "the measuring process died";
    }
}

// Runs the command line as a user would, `runs` times, each a whole process from its start to
// its end; `prepare` runs untimed before each.
void MeasureProcess(Row& row, int runs, const std::vector<std::string>& args,
                    const std::function<void()>& prepare) {
    std::vector<char*> argv;
    for (const std::string& arg : args)
        argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    for (int run = 0; run < runs; ++run) {
        if (prepare) prepare();
        const auto start = Clock::now();
        pid_t child = 0;
        if (posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), environ) != 0) {
            row.error = "can't start " + args[0];
            break;
        }
        // Reaped only once its written bytes are read: the process stays until then.
        siginfo_t info{};
        ::waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT);
        const double ms = MsSince(start);
        std::ifstream io("/proc/" + std::to_string(child) + "/io");
        std::string name;
        uint64_t value = 0;
        while (io >> name >> value) {
            if (name == "wchar:") row.written = value;
        }
        int status = 0;
        rusage usage{};
        ::wait4(child, &status, 0, &usage);
        row.peakKib = std::max(row.peakKib, usage.ru_maxrss);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            row.error = "exit status " + std::to_string(WEXITSTATUS(status));
            break;
        }
        row.ms.push_back(ms);
    }
    posix_spawn_file_actions_destroy(&actions);
}

// The floor: every file of `from` read and written below `to` as the rebuild writes a file (a
// temporary beside it, written, given its mode, closed and renamed over the name), every folder
// made. No path is looked up, no file parsed.
void CopyTreeAtomically(const fs::path& from, const fs::path& to) {
    const size_t skip = from.native().size();
    ::mkdir(to.c_str(), 0777);
    std::string bytes;
    for (const auto& entry : fs::recursive_directory_iterator(from)) {
        const std::string target = to.native() + entry.path().native().substr(skip);
        if (entry.is_directory()) {
            ::mkdir(target.c_str(), 0777);
            continue;
        }
        const int in = ::open(entry.path().c_str(), O_RDONLY);
        struct stat info {};
        ::fstat(in, &info);
        bytes.resize(static_cast<size_t>(info.st_size));
        ReadAll(in, bytes.data(), bytes.size());
        ::close(in);
        const size_t slash = target.rfind('/');
        std::string temp = target.substr(0, slash + 1) + "." + target.substr(slash + 1) + ".XXXXXX";
        const int out = ::mkstemp(temp.data());
        WriteAll(out, bytes.data(), bytes.size());
        ::fchmod(out, 0644);
        ::close(out);
        ::rename(temp.c_str(), target.c_str());
    }
}

// Empties the settings folder as a fresh script pack has it.
void FreshSettings(const test::TempHub& hub) {
    fs::remove_all(hub.Settings());
    fs::create_directories(hub.Settings());
}

// One hub of `profiles` profiles and its rows.
class HubSize {
  public:
    HubSize(int profiles, int runs, const std::string& cli)
        : profiles_(profiles), runs_(runs), cli_(cli) {
        hub_.Write("cfg/Profiles.xml", test::ProfilesXml(profiles));
        pages::RegisterAllBuilders(builders_);
    }

    void WholeTree(std::vector<Row>& rows) {
        // A rebuild as OK at the question runs it, over a fresh tree and over its own.
        std::optional<Program> program;
        Row& fresh = Add(rows, "Full rebuild, fresh tree");
        Measure(
            fresh, runs_,
            [&] {
                FreshSettings(hub_);
                program.emplace(hub_, false);
            },
            [&] { shell::ApplyRebuild(program->container, builders_); });
        Row& again = Add(rows, "Rebuild, tree up to date");
        Measure(
            again, runs_, [&] { program.emplace(hub_, false); },
            [&] { shell::ApplyRebuild(program->container, builders_); });

        const fs::path finished = hub_.Root() / "finished";
        fs::copy(hub_.Settings(), finished, fs::copy_options::recursive);
        const fs::path copy = hub_.Root() / "copy";
        Row& floor = Add(rows, "Copy of the finished tree (floor)");
        Measure(
            floor, runs_, [&] { fs::remove_all(copy); },
            [&] { CopyTreeAtomically(finished, copy); });
        fs::remove_all(copy);
        fs::remove_all(finished);

        const std::vector<std::string> start = {
            cli_,    "--scripts", hub_.Scripts().string(), "--program-version", kVersionText,
            "start", "--yes"};
        MeasureProcess(Add(rows, "Start, nothing to rebuild (process)"), runs_, start, nullptr);
        MeasureProcess(Add(rows, "Start, fresh tree rebuilt (process)"), runs_, start,
                       [&] { FreshSettings(hub_); });
    }

    // Each page opened, saved as its SAVE button saves it, and closed, over the finished tree.
    void Pages(std::vector<Row>& rows, const std::vector<std::string>& keys) {
        for (const std::string& key : keys) {
            Row& row = Add(rows, "Open + save " + key);
            std::optional<Program> program;
            Measure(
                row, runs_,
                [&] {
                    if (!program) program.emplace(hub_, true);
                },
                [&] {
                    shell::Page* page = program->container.Open(key);
                    if (page == nullptr) throw std::runtime_error("no page");
                    static_cast<shell::Toolbar*>(page->Find("tlbFormToolbar"))
                        ->onButtonClick("SAVE");
                    if (!program->container.Close(*page)) throw std::runtime_error("not closed");
                });
        }
    }

  private:
    // What the program holds while it runs: the files, a host, the pages and the container.
    struct Program {
        Program(const test::TempHub& hub, bool withPages)
            : files(hub.ProgramFolder()), container(files, host, registry, kVersion) {
            if (withPages) pages::RegisterAllPages(registry);
            container.LoadProfiles();
        }
        store::TableFiles files;
        std::ostringstream transcript;
        shell::ScriptedHost host{transcript};
        shell::PageRegistry registry;
        shell::Container container;
    };

    Row& Add(std::vector<Row>& rows, std::string work) const {
        Row& row = rows.emplace_back();
        row.work = std::move(work);
        row.profiles = profiles_;
        return row;
    }

    test::TempHub hub_;
    int profiles_;
    int runs_;
    std::string cli_;
    store::BuilderRegistry builders_;
};

// ---- Output ----

std::string Time(double ms) {
    char text[32];
    std::snprintf(text, sizeof text, ms >= 100 ? "%.0f ms" : ms >= 10 ? "%.1f ms" : "%.2f ms", ms);
    return text;
}

std::string Bytes(uint64_t bytes) {
    char text[32];
    if (bytes >= 1000 * 1000) {
        std::snprintf(text, sizeof text, "%.1f MB", static_cast<double>(bytes) / 1e6);
    } else if (bytes >= 1000) {
        std::snprintf(text, sizeof text, "%.0f kB", static_cast<double>(bytes) / 1e3);
    } else {
        std::snprintf(text, sizeof text, "%" PRIu64 " B", bytes);
    }
    return text;
}

std::string Cell(const Row& row) {
    if (!row.error.empty()) return "failed: " + row.error;
    return Time(row.Median()) + " · " + Bytes(row.written) + " · " +
           std::to_string((row.peakKib + 512) / 1024) + " MiB";
}

std::string Quoted(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + "\"";
}

void WriteJson(const std::string& path, const std::vector<Row>& rows, const std::string& machine) {
    std::ofstream out(path);
    out << "{\"machine\": " << Quoted(machine) << ", \"rows\": [\n";
    for (size_t i = 0; i < rows.size(); ++i) {
        const Row& row = rows[i];
        out << "  {\"work\": " << Quoted(row.work) << ", \"profiles\": " << row.profiles
            << ", \"median_ms\": " << row.Median() << ", \"runs_ms\": [";
        for (size_t run = 0; run < row.ms.size(); ++run)
            out << (run ? ", " : "") << row.ms[run];
        out << "], \"bytes_written\": " << row.written << ", \"peak_rss_kib\": " << row.peakKib
            << ", \"error\": " << Quoted(row.error) << "}" << (i + 1 < rows.size() ? "," : "")
            << "\n";
    }
    out << "]}\n";
}

// The medians of an earlier JSON by work and profiles: a line of it holds one row.
std::map<std::pair<std::string, int>, double> ReadMedians(const std::string& path) {
    std::map<std::pair<std::string, int>, double> medians;
    std::ifstream in(path);
    std::string line;
    while (std::getline(in, line)) {
        const size_t work = line.find("{\"work\": \"");
        if (work == std::string::npos) continue;
        const size_t end = line.find('"', work + 10);
        const int profiles = std::stoi(line.substr(line.find("\"profiles\": ") + 12));
        const double median = std::stod(line.substr(line.find("\"median_ms\": ") + 13));
        medians[{line.substr(work + 10, end - work - 10), profiles}] = median;
    }
    return medians;
}

void PrintTable(const std::vector<Row>& rows, const std::vector<int>& sizes,
                const std::string& compare) {
    const auto old = compare.empty() ? decltype(ReadMedians("")){} : ReadMedians(compare);
    std::vector<std::string> works;
    std::map<std::pair<std::string, int>, const Row*> cells;
    for (const Row& row : rows) {
        if (std::find(works.begin(), works.end(), row.work) == works.end())
            works.push_back(row.work);
        cells[{row.work, row.profiles}] = &row;
    }
    std::cout << "| Work |";
    for (const int size : sizes)
        std::cout << " " << size << " profiles |";
    std::cout << "\n|---|";
    for (size_t i = 0; i < sizes.size(); ++i)
        std::cout << "---:|";
    std::cout << "\n";
    const auto print = [&](const std::string& work, const std::function<std::string(int)>& cell) {
        std::cout << "| " << work << " |";
        for (const int size : sizes)
            std::cout << " " << cell(size) << " |";
        std::cout << "\n";
    };
    for (const std::string& work : works) {
        print(work, [&](int size) -> std::string {
            const auto found = cells.find({work, size});
            if (found == cells.end()) return "";
            std::string cell = Cell(*found->second);
            const auto before = old.find({work, size});
            if (before != old.end() && before->second > 0 && found->second->error.empty()) {
                char ratio[32];
                std::snprintf(ratio, sizeof ratio, " (%.2f× before)",
                              found->second->Median() / before->second);
                cell += ratio;
            }
            return cell;
        });
        if (work == "Copy of the finished tree (floor)") {
            print("Fresh rebuild ÷ copy floor", [&](int size) -> std::string {
                const auto rebuild = cells.find({"Full rebuild, fresh tree", size});
                const auto floor = cells.find({work, size});
                if (rebuild == cells.end() || floor == cells.end()) return "";
                char ratio[32];
                std::snprintf(ratio, sizeof ratio, "%.2f",
                              rebuild->second->Median() / floor->second->Median());
                return ratio;
            });
        }
    }
}

std::string Machine() {
    std::ifstream cpu("/proc/cpuinfo");
    std::string line;
    std::string model;
    while (std::getline(cpu, line)) {
        if (line.starts_with("model name")) {
            model = line.substr(line.find(':') + 2);
            break;
        }
    }
    return model + ", " + std::to_string(::sysconf(_SC_NPROCESSORS_ONLN)) + " cores";
}

std::vector<int> ParseSizes(const std::string& text) {
    std::vector<int> sizes;
    std::istringstream in(text);
    std::string size;
    while (std::getline(in, size, ','))
        sizes.push_back(std::stoi(size));
    return sizes;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<int> sizes = {4, 100, 250, 1000};
    int runs = 5;
    std::string json = "tree_bench.json";
    std::string compare;
    std::string cli = QB_CLI;
    std::string only;  // a part of the page keys to measure; empty measures all
    bool pagesToo = true;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        const bool value = i + 1 < argc;
        if (arg == "--sizes" && value) {
            sizes = ParseSizes(argv[++i]);
        } else if (arg == "--runs" && value) {
            runs = std::stoi(argv[++i]);
        } else if (arg == "--json" && value) {
            json = argv[++i];
        } else if (arg == "--compare" && value) {
            compare = argv[++i];
        } else if (arg == "--pages" && value) {
            only = argv[++i];
        } else if (arg == "--no-pages") {
            pagesToo = false;
        } else {
            std::cerr << "usage: tree_bench [--sizes 4,100,250,1000] [--runs N] [--json FILE]\n"
                         "                  [--compare OLD.json] [--pages TEXT | --no-pages]\n";
            return 2;
        }
    }

    std::vector<std::string> keys;
    {
        shell::PageRegistry registry;
        pages::RegisterAllPages(registry);
        for (const std::string& key : registry.Keys()) {
            if (key.find(only) != std::string::npos) keys.push_back(key);
        }
    }
    std::vector<Row> rows;
    for (const int size : sizes) {
        std::cerr << "tree_bench: " << size << " profiles\n";
        // The largest hub takes seconds a run; three runs still give a median.
        HubSize hub(size, size >= 1000 ? std::min(runs, 3) : runs, cli);
        hub.WholeTree(rows);
        if (pagesToo) hub.Pages(rows, keys);
    }
    const std::string machine = Machine();
    std::cout << "Machine: " << machine << "; median of " << runs
              << " runs (3 at 1000 profiles or more); each cell: median time · bytes the run "
                 "wrote · peak resident memory of the process\n\n";
    PrintTable(rows, sizes, compare);
    WriteJson(json, rows, machine);
    return 0;
}
