// Runs a program of the build with limits on memory and processor time.
#pragma once
#include <sys/resource.h>

#include <QProcess>
#include <QStringList>

#if defined(__SANITIZE_ADDRESS__)
#define VRX_TEST_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VRX_TEST_ASAN 1
#endif
#endif

struct LimitedRun {
  bool ended = false;  // by itself, not by a signal
  int code = -1;
  QByteArray out, err;
};

constexpr rlim_t GigaByte = rlim_t{1} << 30;

// 1 GB of addresses, as a rule, and 5 s of processor time. The sanitizer needs more addresses than there are
// to limit, and is several times slower; it has only a limit on time that ends what hangs.
inline LimitedRun RunLimited(const char* program, const QStringList& arguments,
                             [[maybe_unused]] rlim_t memory = GigaByte) {
  QProcess process;
  process.setChildProcessModifier([memory] {
    const auto limit = [](auto what, rlim_t amount) {
      const rlimit both{amount, amount};
      setrlimit(what, &both);
    };
    limit(RLIMIT_CORE, 0);
#ifdef VRX_TEST_ASAN
    Q_UNUSED(memory)
    limit(RLIMIT_CPU, 300);
#else
    limit(RLIMIT_CPU, 5);
    limit(RLIMIT_AS, memory);
#endif
  });
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  process.setProcessEnvironment(environment);
  process.start(QStringLiteral(VRX_BINARY_DIR "/bin/") + QString::fromLatin1(program), arguments);
  // Its standard input stays open: who reads it waits, and is found out by the time limit of the test.
  LimitedRun r;
  if (!process.waitForFinished(-1)) return r;
  r.ended = process.exitStatus() == QProcess::NormalExit;
  r.code = process.exitCode();
  r.out = process.readAllStandardOutput();
  r.err = process.readAllStandardError();
  return r;
}
