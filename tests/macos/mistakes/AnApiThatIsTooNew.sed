# in: Program.mm
# says: only available on macOS 14
s/activateIgnoringOtherApps:YES/activate/
