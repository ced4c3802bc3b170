# Copies FROM to TO where there is no TO: a catalogue of a user is never overwritten.
if(NOT EXISTS ${TO})
    configure_file(${FROM} ${TO} COPYONLY)
endif()
