# in: AppleScripts.mm
# says: property 'runningApplications' not found on object of type 'NSWorkspace'
s/NSWorkspace\.sharedWorkspace\.runningApplications/NSWorkspace.runningApplications/
