#include "Core/Grouping/ProcessGrouper.h"
#include "Core/Sampling/Sampler.h"
#include "Platform/Linux/LinuxProcessTable.h"
#include "fuzz/Fuzz.h"
#include "support/FakePlatform.h"
#include "support/TemporaryFolder.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Beyond the kernel's maximum, so that no CPU clock has this PID.
constexpr qint32 pid = 5'000'001;

/// A procfs with one process, whose files are written for every input.
class Process {
public:
    Process() { m_proc.makeFolder(u"5000001"_s); }

    std::string root() const { return m_proc.path().toStdString(); }

    void write(const QList<QByteArray>& texts) {
        const char* names[] = {"stat", "cmdline"};
        for (qsizetype i = 0; i < std::ssize(names); ++i)
            m_proc.makeFile(u"5000001/"_s + QString::fromLatin1(names[i]), texts[i]);
        const std::string executable = root() + "/5000001/exe";
        unlink(executable.c_str());
        static_cast<void>(!symlink(texts.last().constData(), executable.c_str()));
    }

private:
    TemporaryFolder m_proc;
};

void checkOrigin(const ProcessOrigin& origin, const QByteArray& stat) {
    const auto parsed = ProcStat::parse(stat.first(std::min<qsizetype>(stat.size(), 1024)).toStdString());
    Fuzz::require(origin.kernelInfo.has_value() == parsed.has_value());
    Fuzz::require(!parsed ||
                  (origin.shortName == parsed->name && origin.kernelInfo->parentPid == parsed->parentPid));
}

void checkSample(const ProcSample& sample, const QByteArray& commandLine) {
    Fuzz::require(!sample.name.isEmpty() || sample.executablePath.endsWith(u'/'));
    Fuzz::require(!sample.arguments.contains(QChar()) && sample.threads >= 0);
    Fuzz::require(sample.arguments.isEmpty() == (commandLine.count('\0') == commandLine.size()));
}

} // namespace

/// The files of one process in the order of `Process::write`, then the target of its symlink `exe`.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Process process;
    const QList<QByteArray> texts = Fuzz::texts(Fuzz::bytes(data, size), 3);
    process.write(texts);
    const auto table = std::make_shared<LinuxProcessTable>(process.root());
    checkOrigin(table->origin(pid), texts[0]);

    Platform platform;
    platform.host = std::make_shared<FakeHostStatistics>();
    platform.clock = std::make_shared<FakeClock>();
    platform.processes = table;
    platform.applications = std::make_shared<FakeApplications>();
    const ProcessGrouper grouper;
    Sampler sampler(platform, [&](const ProcSample& sample) { return grouper.groupOf(sample); });
    const QList<ProcSample> samples = sampler.sampleProcesses();
    Fuzz::require(samples.size() <= 1);
    for (const ProcSample& sample : samples)
        checkSample(sample, texts[1]);
    return 0;
}
