// Asks every running application with an identifier to quit, as the Dock does, and prints its process:
// osascript -l JavaScript quit.js IDENTIFIER
ObjC.import("AppKit");

function run([identifier]) {
    const running = $.NSRunningApplication.runningApplicationsWithBundleIdentifier(identifier);
    const processes = [];
    for (let index = 0; index < running.count; index += 1) {
        const application = running.objectAtIndex(index);
        processes.push(application.processIdentifier);
        application.terminate; // a method without arguments is called where it is named
    }
    return processes.join("\n");
}
