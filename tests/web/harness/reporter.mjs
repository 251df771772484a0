// Says what ran as GoogleTest says it, which is what the count of ./test reads.
export default async function* report(source) {
  let passed = 0;
  const failed = [];
  for await (const { type, data } of source) {
    const isCase = data.details?.type !== 'suite' && !data.name?.endsWith('.test.mjs');
    if (type === 'test:pass' && isCase && !data.skip) {
      ++passed;
      yield `[       OK ] ${data.name} (${Math.round(data.details.duration_ms)} ms)\n`;
    } else if (type === 'test:fail' && (isCase || data.details.error?.failureType !== 'subtestsFailed')) {
      failed.push(data.name);
      const error = data.details.error?.cause ?? data.details.error;
      yield `${error?.stack ?? error}\n[  FAILED  ] ${data.name}\n`;
    } else if (type === 'test:stdout' || type === 'test:stderr' || type === 'test:diagnostic') {
      if (type !== 'test:diagnostic') yield data.message;
    }
  }
  yield `[  PASSED  ] ${passed} tests.\n`;
  if (failed.length > 0) yield `[  FAILED  ] ${failed.length} tests, listed below:\n`;
  for (const name of failed) yield `[  FAILED  ] ${name}\n`;
}
