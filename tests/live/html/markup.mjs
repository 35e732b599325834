// Markup checks: html-validate with its recommended rules, and the Nu checker with its warnings.
import { readFileSync } from 'node:fs';
import { spawnSync } from 'node:child_process';
import { pathToFileURL } from 'node:url';
import { HtmlValidate, StaticConfigLoader } from 'html-validate';
import vnu from 'vnu-jar';

function validate(file) {
    const validator = new HtmlValidate(new StaticConfigLoader({ root: true, extends: ['html-validate:recommended'] }));
    const report = validator.validateStringSync(readFileSync(file, 'utf8'), file);
    return report.results.flatMap((r) => r.messages).map((m) => `html-validate ${m.ruleId}, line ${m.line}: ${m.message}`);
}

function nuMessages(files) {
    const run = spawnSync('java', ['-jar', vnu, '--html', '--format', 'json', '--exit-zero-always', '--stdout', ...files],
                          { encoding: 'utf8', maxBuffer: 1 << 26 });
    if (run.status !== 0)
        throw new Error(`the Nu checker did not run: ${run.error ?? run.stderr}`);
    return JSON.parse(run.stdout).messages;
}

// The problems of each file by its path.
export function checkMarkup(files) {
    const messages = nuMessages(files);
    return new Map(files.map((file) => {
        const address = pathToFileURL(file).href;
        const nu = messages.filter((m) => pathToFileURL(decodeURI(m.url ?? '').replace(/^file:(\/\/)?/, '')).href === address);
        return [file, [...validate(file), ...nu.map((m) => `nu ${m.subType ?? m.type}, line ${m.lastLine}: ${m.message}`)]];
    }));
}
